#include "host/admin/documents/manual_text.h"

#include <algorithm>
#include <optional>
#include <sstream>

namespace ferrowind::host {
namespace {

using Kind = ManualBlock::Kind;

bool IsHeading(std::string_view line) {
  return !line.empty() && line.front() != ' ' &&
         std::all_of(line.begin(), line.end(), [](char c) { return c == ' ' || (c >= 'A' && c <= 'Z'); });
}

/// Reads line by line; each adds a block or goes on with the last one.
class ManualReader {
 public:
  void Read(std::string_view line) {
    const std::size_t indentation = line.find_first_not_of(' ');
    if (indentation == std::string_view::npos) {
      goes_on_at_.reset();
    } else if (IsHeading(line)) {
      Add(Kind::kHeading, line);
      shows_examples_ = line == "EXAMPLES";
    } else if (goes_on_at_ == indentation) {
      blocks_.back().text.append(" ").append(line.substr(indentation));
    } else if (shows_examples_ && indentation > 0) {
      Add(Kind::kVerbatim, line);
    } else if (!ReadItem(line, indentation)) {
      Add(Kind::kParagraph, line.substr(indentation));
      goes_on_at_ = indentation;
    }
  }

  [[nodiscard]] std::vector<ManualBlock> Take() && { return std::move(blocks_); }

 private:
  void Add(Kind kind, std::string_view text, std::string_view tag = {}) {
    blocks_.push_back({kind, std::string(text), std::string(tag)});
    goes_on_at_.reset();
  }

  bool ReadItem(std::string_view line, std::size_t indentation) {
    const std::size_t gap = line.find("  ", indentation);
    if (indentation == 0 || gap == std::string_view::npos) return false;
    const std::size_t text = line.find_first_not_of(' ', gap);
    if (text == std::string_view::npos) return false;
    Add(Kind::kItem, line.substr(text), line.substr(indentation, gap - indentation));
    goes_on_at_ = text;
    return true;
  }

  std::vector<ManualBlock> blocks_;
  /// Where the lines begin that go on with the last block.
  std::optional<std::size_t> goes_on_at_;
  bool shows_examples_ = false;
};

}  // namespace

std::vector<ManualBlock> ReadManual(std::string_view text) {
  ManualReader reader;
  std::istringstream lines{std::string(text)};
  for (std::string line; std::getline(lines, line);) reader.Read(line);
  return std::move(reader).Take();
}

}  // namespace ferrowind::host
