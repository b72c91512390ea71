#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace ferrowind::host {

/// What a command works with.
struct CommandSurroundings {
  const platform::EngineRegistry& engines;
  std::ostream& out;
  std::ostream& errors;
};

/// What a command does, once its arguments are read. What cannot be done is an exception whose text says why.
using CommandAction = std::function<ExitStatus(const CommandSurroundings& surroundings)>;

/// The commands of a program, each with what it does.
class CommandSet {
 public:
  /// Adds to `program`, which must outlive this object.
  explicit CommandSet(CLI::App& program) : program_(program) {}

  /// A command `name` with the text that "COMMAND --help" ends with. The caller adds its arguments to what is
  /// returned.
  CLI::App& Add(const char* name, const char* description, const char* manual, CommandAction action);
  /// A word in front of commands of one kind, which `AddTo` adds.
  CLI::App& AddGroup(const char* name, const char* description, const char* manual);
  CLI::App& AddTo(CLI::App& group, const char* name, const char* description, CommandAction action);

  /// Does what the command does that the program's arguments name, which must have been parsed.
  [[nodiscard]] ExitStatus RunChosen(const CommandSurroundings& surroundings) const;

 private:
  CLI::App& program_;
  std::vector<std::pair<CLI::App*, CommandAction>> actions_;
};

/// `action` for a command that changes something: it goes on when nobody reads its output any more, so that
/// the work is done, and the command says in the end that it could not write.
[[nodiscard]] CommandAction Changing(CommandAction action);

/// Makes the argument the URL of a database for shells, which complete it. One with the name URL is it
/// anyway.
void TakeDatabase(CLI::Option& argument);
[[nodiscard]] bool TakesDatabase(const CLI::Option& argument);

/// The option by which `command` takes the form of its output.
void AddFormat(CLI::App& command, OutputFormat& format);

}  // namespace ferrowind::host
