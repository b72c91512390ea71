#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "ferrowind/almanac/book_text.h"

namespace ferrowind::host {

/// The text of a book that an operator gave.
struct BookSource {
  /// What messages call it: the file, or "Standard input".
  std::string name;
  almanac::BookReading reading;
  /// The fingerprint in the text's line `StateLine`: which stored book the text was made of.
  std::optional<std::string> state;
};

/// The text that the file holds, or `in` when `file` is "-". What cannot be read is a
/// `platform::Failure` that names the file; what is wrong in the text is left to the reading.
[[nodiscard]] BookSource ReadBookFrom(const std::string& file, std::istream& in);

/// The line, a comment, which tells of what stored book a text is made.
[[nodiscard]] std::string StateLine(const std::string& fingerprint);

}  // namespace ferrowind::host
