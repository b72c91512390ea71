#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/almanac/text_error.h"

/// Books as text that people write, as files in database/seed/books are: UTF-8; blank lines and lines that
/// begin with "#" mean nothing.
///
///     publisher European Central Bank
///     document Calendar of TARGET closing days
///     since 2015
///     # kind      | name       | expression | comment [| name of the moved day]
///     weekday     | Saturday   | weekday Saturday | Weekend
///     celebration | New Year's Day | 01-01 | 1 January
///
/// The line "since" may be missing: such a book tells of all years. The kinds are "working day", "weekday",
/// "celebration" and "point".
namespace ferrowind::almanac {

/// `TextError` when the text is no book; the failure of an expression is among them, with its place in the
/// line. What is wrong with the book itself is left to `FaultsOf`.
[[nodiscard]] RuleBook ReadBook(std::string_view text);

/// A text as far as it can be read.
struct BookReading {
  RuleBook book;
  /// Of each rule of the book, the line of the text in which it stands, from 1 on.
  std::vector<std::size_t> lines;
  /// One for each wrong line; with any the text is no book.
  std::vector<TextError> errors;
};

/// Reads on behind a wrong line, so that all of them can be told at once.
[[nodiscard]] BookReading ReadWholeBook(std::string_view text);

/// The book as lines of a text without columns: its head and then each rule.
[[nodiscard]] std::vector<std::string> PlainLinesOf(const RuleBook& book);

/// The text that `ReadBook` reads as this book, with columns aligned. A text of the book cannot be written
/// that holds
/// "|" or a control character, begins or ends with a blank, is no UTF-8, or is an empty name: a
/// `platform::Failure` that says which.
[[nodiscard]] std::string WriteBook(const RuleBook& book);

/// "working day", "weekday", "celebration" or "point".
[[nodiscard]] std::string_view TextOf(RuleKind kind);

}  // namespace ferrowind::almanac
