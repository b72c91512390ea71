#include "ferrowind/adapters/win32/dates/date_words.h"

#include <array>

#include "ferrowind/adapters/win32/base/locale_text.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {
namespace {

/// Whether the operator's language writes the month before the day.
bool MonthIsFirst() {
  const std::wstring pattern = LocaleText(LOCALE_NAME_USER_DEFAULT, LOCALE_SSHORTDATE);
  return pattern.find(L'M') < pattern.find(L'd');
}

}  // namespace

std::wstring MonthName(int month) {
  return LocaleText(LOCALE_NAME_USER_DEFAULT, static_cast<LCTYPE>(LOCALE_SMONTHNAME1 + month - 1));
}

std::wstring WeekdayName(int weekday, bool is_shortest) {
  // The platform begins with Monday.
  constexpr int kWeek = 7;
  const int place = (weekday + kWeek - 2) % kWeek;
  const int first = is_shortest ? LOCALE_SSHORTESTDAYNAME1 : LOCALE_SABBREVDAYNAME1;
  return LocaleText(LOCALE_NAME_USER_DEFAULT, static_cast<LCTYPE>(first + place));
}

int FirstWeekday() {
  constexpr int kWeek = 7;
  DWORD first = 0;
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IFIRSTDAYOFWEEK | LOCALE_RETURN_NUMBER,
                  reinterpret_cast<wchar_t*>(&first), sizeof first / sizeof(wchar_t));
  return static_cast<int>(first + 1) % kWeek + 1;
}

std::wstring LongDate(const platform::Date& date) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(date.Year());
  time.wMonth = static_cast<WORD>(date.Month());
  time.wDay = static_cast<WORD>(date.Day());
  std::array<wchar_t, 128> text{};
  const int length = GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_LONGDATE, &time, nullptr, text.data(),
                                     static_cast<int>(text.size()), nullptr);
  // The platform's calendar does not go back to the first years.
  return length > 0 ? std::wstring(text.data()) : ToWide(date.ToIso());
}

std::wstring FormatDate(const platform::Date& date, const std::wstring& format) {
  std::wstring text;
  for (std::size_t i = 0; i < format.size();) {
    std::size_t end = i + 1;
    while (end < format.size() && format[end] == format[i]) ++end;
    const std::wstring letters = format.substr(i, end - i);
    if (letters == L"d") {
      text += std::to_wstring(date.Day());
    } else if (letters == L"MMMM") {
      text += MonthName(date.Month());
    } else if (letters == L"yyyy") {
      text += std::to_wstring(date.Year());
    } else {
      text += letters;
    }
    i = end;
  }
  return text;
}

std::wstring NumbersOfDay(const platform::Date& date) {
  std::wstring separator = LocaleText(LOCALE_NAME_USER_DEFAULT, LOCALE_SDATE);
  if (separator.empty()) separator = L"/";
  const std::wstring day = std::to_wstring(date.Day());
  const std::wstring month = std::to_wstring(date.Month());
  return MonthIsFirst() ? month + separator + day : day + separator + month;
}

}  // namespace ferrowind::win32
