#pragma once

#include <string>
#include <string_view>

#include "ferrowind/platform/values/failure.h"

/// What a SQLSTATE says to people. A description is in plain words what is wrong, and ends with the SQLSTATE
/// and the text of who reported it.
namespace ferrowind::postgres {

/// Whether `text` is five digits and capital letters. Whatever answers in the place of a server may write
/// anything there.
[[nodiscard]] bool IsSqlState(std::string_view text);

/// The failure for `sqlstate`, whose number is its value to base 36, with the `native_text` of `reporter`.
[[nodiscard]] platform::Failure FailureOfState(std::string_view sqlstate, const std::string& plain_words,
                                               const std::string& native_text,
                                               std::string_view reporter = "PostgreSQL");

/// Whether `failure` is of that SQLSTATE.
[[nodiscard]] bool IsOfState(const platform::Failure& failure, std::string_view sqlstate);

/// What `sqlstate` means, said of `database`, which begins the sentence.
[[nodiscard]] std::string PlainWords(std::string_view sqlstate, const std::string& database);

/// `failure` with `introduction` in front of its description.
[[nodiscard]] platform::Failure Introduced(const std::string& introduction, const platform::Failure& failure);

/// A text of a library, which may have several lines, end with a line break, be of any length and any bytes,
/// on one line of UTF-8; empty for null.
[[nodiscard]] std::string OnOneLine(const char* text);

/// Of such a text as much as somebody may read, in UTF-8.
[[nodiscard]] std::string Readable(std::string text);

}  // namespace ferrowind::postgres
