#pragma once

#include <optional>
#include <string>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::win32 {

/// The full name of the month 1 to 12 in the operator's language.
[[nodiscard]] std::wstring MonthName(int month);

/// The date in a format of `platform::DatePicker::SetCustomFormat`.
[[nodiscard]] std::wstring FormatDate(const platform::Date& date, const std::wstring& format);

/// The day that a typed text means: a day and a month, the month by its number or by the beginning of its
/// name, in the order of the operator's language where both are numbers; a year, where there is one, must be
/// `year`. Nothing for a text that is none, or that could be two months.
[[nodiscard]] std::optional<platform::Date> ReadDay(const std::wstring& text, int year);

}  // namespace ferrowind::win32
