#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ferrowind::exchange {

/// Of bytes. A list of 26 currencies and 50 years with their weekends is shorter.
inline constexpr std::size_t kLongestList = 4'000'000;

/// The text of a list as UTF-8 without a byte order mark. UTF-8 and, with a byte order mark, UTF-16 are read;
/// of anything else, and of a list that is longer than `kLongestList`, a `ListError` says what it seems to be
/// and where.
[[nodiscard]] std::string TextOfList(std::string bytes);

/// A name as a list keeps it: blanks, tabs and line breaks in a row become one blank, and none stands at an
/// end.
[[nodiscard]] std::string TidyName(std::string_view text);

/// Why `name` cannot be one; empty when it can: it is too long or holds control characters.
[[nodiscard]] std::string FaultOfName(const std::string& name);

}  // namespace ferrowind::exchange
