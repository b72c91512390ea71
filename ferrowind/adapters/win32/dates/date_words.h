#pragma once

#include <string>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::win32 {

/// The full name of the month 1 to 12 in the operator's language.
[[nodiscard]] std::wstring MonthName(int month);

/// A weekday, 1 Sunday to 7 Saturday, in a few letters, or in the least by which the language tells it.
[[nodiscard]] std::wstring WeekdayName(int weekday, bool is_shortest);

/// The weekday that weeks begin with, 1 Sunday to 7 Saturday.
[[nodiscard]] int FirstWeekday();

/// A day with its weekday, month and year in words.
[[nodiscard]] std::wstring LongDate(const platform::Date& date);

/// The date in a format of `platform::DatePicker::SetCustomFormat`.
[[nodiscard]] std::wstring FormatDate(const platform::Date& date, const std::wstring& format);

/// A day and a month as two numbers, in the order and with the sign between them of the operator's language.
[[nodiscard]] std::wstring NumbersOfDay(const platform::Date& date);

}  // namespace ferrowind::win32
