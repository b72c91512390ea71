#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::exchange {

/// A date at the beginning of a text.
struct WrittenDate {
  std::optional<platform::Date> date;
  /// Why there is none, without a full stop.
  std::string why_not;
  /// Behind the date, with its blanks.
  std::string_view rest;
};

/// Reads YYYY-MM-DD, DD.MM.YYYY, or a date with an English month by name or its first three letters:
/// "1 January 2027", "1st Jan 2027", "January 1, 2027", "01-Jan-2027". An English weekday may stand before
/// it, also by its first three letters, and must be that of the date. The date ends at a blank, a comma, a
/// semicolon, a colon or the text's end. Numbers with slashes are a date where they can mean one day only, as
/// in 26/03/2027 and 03/26/2027; 01/02/2027 means one day to some people and another to others, and is none.
/// `text` must outlive the result.
[[nodiscard]] WrittenDate ReadDateAtFront(std::string_view text);

/// The same of a text that is a date and nothing else.
[[nodiscard]] WrittenDate ReadWholeDate(std::string_view text);

}  // namespace ferrowind::exchange
