#include "ferrowind/adapters/sql_script/statement_splitter.h"

#include <algorithm>
#include <string>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sql_script {
namespace {

class Splitter {
 public:
  explicit Splitter(std::string_view script) : script_(script) {}

  std::vector<Statement> Split() {
    RefuseNul();
    while (place_ < script_.size()) {
      const char c = script_[place_];
      if (c == ';') {
        FinishStatement();
        ++place_;
      } else if (script_.substr(place_, 2) == "--") {
        place_ = std::min(script_.find('\n', place_), script_.size());
      } else if (script_.substr(place_, 2) == "/*") {
        SkipBehind("*/", 2, "a comment that does not end");
      } else if (IsBlank(c)) {
        ++place_;
      } else {
        TakeWord(c);
      }
    }
    FinishStatement();
    return std::move(statements_);
  }

 private:
  /// SQLite takes a NUL for the end of a statement and would leave out the rest.
  void RefuseNul() {
    const std::size_t found = script_.find('\0');
    if (found == std::string_view::npos) return;
    place_ = found;
    throw Malformed("the character NUL");
  }

  static bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

  static bool IsOfAWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  }

  /// A quote, a word, or one character of anything else; each belongs to a statement. A doubled quote inside
  /// quotes reads as two quoted texts in a row, which splits alike.
  void TakeWord(char c) {
    const std::size_t start = place_;
    if (c == '\'' || c == '"' || c == '`') {
      SkipBehind(std::string_view(&script_[place_], 1), 1, "a quote that does not end");
    } else if (c == '[') {
      SkipBehind("]", 1, "a bracket that does not end");
    } else {
      ++place_;
      // Every call splits its procedure's body, most of which is words.
      if (IsOfAWord(c)) {
        while (place_ < script_.size() && IsOfAWord(script_[place_])) ++place_;
      }
    }
    if (!in_statement_) first_ = start;
    in_statement_ = true;
    end_ = place_;
  }

  void SkipBehind(std::string_view mark, std::size_t opening_size, const char* what_is_open) {
    const std::size_t found = script_.find(mark, place_ + opening_size);
    if (found == std::string_view::npos) throw Malformed(what_is_open);
    place_ = found + mark.size();
  }

  void FinishStatement() {
    if (in_statement_) statements_.push_back({script_.substr(first_, end_ - first_), LineAt(first_)});
    in_statement_ = false;
  }

  /// Counts on from the place that was asked for last, so that all the lines of a script cost one walk over
  /// it.
  std::size_t LineAt(std::size_t place) {
    for (; counted_ < place; ++counted_) line_ += script_[counted_] == '\n' ? 1U : 0U;
    return line_;
  }

  platform::Failure Malformed(const char* what) {
    return {platform::failure_number::kInvalidArgument,
            "Line " + std::to_string(LineAt(place_)) + " of the script has " + what};
  }

  std::string_view script_;
  std::size_t place_ = 0;
  bool in_statement_ = false;
  std::size_t first_ = 0;
  std::size_t end_ = 0;
  std::size_t counted_ = 0;
  std::size_t line_ = 1;
  std::vector<Statement> statements_;
};

}  // namespace

std::vector<Statement> SplitStatements(std::string_view script) { return Splitter(script).Split(); }

}  // namespace ferrowind::sql_script
