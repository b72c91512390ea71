#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/platform/values/phrase.h"

/// Dates for the sentences that operators read, and in English for expressions.
namespace ferrowind::almanac {

/// "Sunday" for 1 to "Saturday" for 7.
[[nodiscard]] std::string_view WeekdayName(int weekday);
/// The weekday of that name, in any letter case.
[[nodiscard]] std::optional<int> WeekdayNamed(std::string_view name);
/// "January" for 1 to "December" for 12.
[[nodiscard]] std::string_view MonthName(int month);
/// The name of the weekday as a phrase.
[[nodiscard]] platform::Phrase Weekday(int weekday);
/// "16 April".
[[nodiscard]] platform::Phrase DayAndMonth(int month, int day);
/// "16 April 2028".
[[nodiscard]] platform::Phrase LongDate(std::int32_t serial);
/// "Sunday 16 April 2028".
[[nodiscard]] platform::Phrase LongDay(std::int32_t serial);
/// "one" to "twelve" in words, others in digits.
[[nodiscard]] platform::Phrase NumberWord(int number);
/// "a Saturday or a Sunday", Monday first.
[[nodiscard]] platform::Phrase AnyOf(WeekdaySet weekdays);
/// "first" to "fifth", and "last".
[[nodiscard]] std::string_view OrdinalWord(int ordinal);
/// "on or after".
[[nodiscard]] std::string_view RelationWords(Relation relation);
/// "+09:00".
[[nodiscard]] std::string UtcOffset(int minutes);
/// "a year 1900 to 2199": what is expected where `YearIn` finds none.
[[nodiscard]] platform::Phrase AYear();
/// The year, `kFirstYear` to `kLastYear`, that is the whole of `text`, in four digits.
[[nodiscard]] std::optional<int> YearIn(std::string_view text);
/// `number` with leading zeros.
[[nodiscard]] std::string Digits(int number, std::size_t width);

}  // namespace ferrowind::almanac
