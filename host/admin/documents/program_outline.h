#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace ferrowind::host {

/// What a shell can offer for a value.
enum class ValueKind { kAnything, kDatabase, kFile };

/// A value that stands by its place.
struct OutlinedArgument {
  std::string name;
  std::string description;
  bool is_required = false;
  /// There can be several, up to the end of the line.
  bool is_repeated = false;
  ValueKind kind = ValueKind::kAnything;
};

struct OutlinedOption {
  /// With their dashes; short ones first.
  std::vector<std::string> names = {};
  /// What its value is called; empty for an option without a value.
  std::string value = {};
  std::string description;
  /// The values that it takes; empty when these are not listed.
  std::vector<std::string> choices = {};
  ValueKind kind = ValueKind::kAnything;
};

/// A command as its help tells it; the whole program is one, too.
struct OutlinedCommand {
  std::string name;
  std::string description;
  /// What its help ends with: paragraphs, lists and headings. Empty where it is that of the group around it.
  std::string manual = {};
  std::vector<OutlinedArgument> arguments = {};
  std::vector<OutlinedOption> options = {};
  std::vector<OutlinedCommand> commands = {};
};

/// All that the help of `program` and of its commands tells, in its order.
[[nodiscard]] OutlinedCommand OutlineOf(const CLI::App& program);

}  // namespace ferrowind::host
