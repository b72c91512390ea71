#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

///@{
/// Conversions between the types of a `Value`, by the platform's rules.
///
/// Each fails with Invalid use of Null for an empty value, Type mismatch for one that has no such meaning
/// (text that is not a number, an object) and Overflow for one out of range. Fractions round to the nearest
/// whole number, halves to the even one. Text is read after removing outer blanks; a number is written with
/// an optional sign and a decimal point, independent of any locale.
[[nodiscard]] FERROWIND_EXPORT std::int16_t ToInt16(const Value& value);
[[nodiscard]] FERROWIND_EXPORT std::int32_t ToInt32(const Value& value);
[[nodiscard]] FERROWIND_EXPORT float ToSingle(const Value& value);
[[nodiscard]] FERROWIND_EXPORT double ToDouble(const Value& value);
///@}
/// Takes a date, ISO 8601 text "YYYY-MM-DD", or a number as a date serial.
[[nodiscard]] FERROWIND_EXPORT Date ToDate(const Value& value);
/// Numbers in decimal without an exponent, dates as "YYYY-MM-DD", booleans as "True" and "False". Fails for
/// empty and for objects.
[[nodiscard]] FERROWIND_EXPORT std::string ToText(const Value& value);
/// As `ToText`, with an empty text for an empty value.
[[nodiscard]] FERROWIND_EXPORT std::string ToTextOrEmpty(const Value& value);

/// The text without its leading and trailing blanks (U+0020 only, as the platform trims).
[[nodiscard]] FERROWIND_EXPORT std::string Trim(const std::string& text);

}  // namespace ferrowind::platform
