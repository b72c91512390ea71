#pragma once

#include <cstddef>
#include <string_view>

namespace ferrowind::almanac {

/// The lines of a text that mean something: neither blank nor a comment.
class TextLines {
 public:
  /// `text` must outlive the lines.
  explicit TextLines(std::string_view text);

  /// Moves to the next line; false when there is none. `TextError` when it is no UTF-8 or holds a control
  /// character but tabs; the line behind it can be read all the same.
  bool Next();
  /// The line without outer blanks.
  [[nodiscard]] std::string_view Line() const { return line_; }
  /// Of the line, from 1 on.
  [[nodiscard]] std::size_t Number() const { return number_; }
  /// The place in its line, from 1 on, of a part of `Line()`, or of its end.
  [[nodiscard]] std::size_t PlaceOf(std::string_view part) const;

 private:
  std::string_view rest_;
  std::string_view whole_line_;
  std::string_view line_;
  std::size_t number_ = 0;
};

/// The place of the first control character that is no tab, from 0 on; `npos` without one.
[[nodiscard]] std::size_t FindControlCharacter(std::string_view text);

/// `text` without leading and trailing blanks, tabs and carriage returns.
[[nodiscard]] std::string_view WithoutOuterBlanks(std::string_view text);

}  // namespace ferrowind::almanac
