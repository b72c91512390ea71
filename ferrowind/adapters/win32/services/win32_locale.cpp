#include "ferrowind/adapters/win32/services/win32_locale.h"

#include <array>
#include <utility>

#include "ferrowind/adapters/win32/base/locale_text.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

constexpr const wchar_t* kWeekday = L"dddd";

/// A short format with all four digits of the year, of which many locales show two.
std::wstring WithFullYear(std::wstring format) {
  const auto year = format.find(L"yy");
  if (year != std::wstring::npos && format.find(L"yyyy") == std::wstring::npos)
    format.replace(year, 2, L"yyyy");
  return format;
}

/// Without commas, which would set a date's parts apart as they do the texts beside it, and without a
/// weekday, which is written in front.
std::wstring InWords(std::wstring format) {
  const auto weekday = format.find(L"ddd");
  if (weekday != std::wstring::npos) {
    const auto end = format.find_first_not_of(L'd', weekday);
    format.erase(weekday, end == std::wstring::npos ? end : end - weekday);
  }
  std::erase(format, L',');
  std::erase(format, L'\u060C');
  const auto first = format.find_first_not_of(L' ');
  if (first == std::wstring::npos) return {};
  return format.substr(first, format.find_last_not_of(L' ') + 1 - first);
}

/// Marks of direction would tear a date apart within other text.
std::wstring WithoutMarks(std::wstring text) {
  std::erase_if(
      text, [](wchar_t letter) { return letter == L'\u200E' || letter == L'\u200F' || letter == L'\u061C'; });
  return text;
}

}  // namespace

Win32Locale::Win32Locale(std::optional<std::wstring> name) : name_(std::move(name)), typed_dates_(Name()) {}

std::string Win32Locale::MonthName(int month) const {
  if (month < 1 || month > 12) throw platform::InvalidArgument();
  return FromWide(LocaleText(Name(), static_cast<LCTYPE>(LOCALE_SMONTHNAME1 + month - 1)));
}

std::string Win32Locale::WeekdayName(int weekday) const {
  if (weekday < 1 || weekday > 7) throw platform::InvalidArgument();
  // The platform counts from Monday.
  return FromWide(LocaleText(Name(), static_cast<LCTYPE>(LOCALE_SDAYNAME1 + (weekday + 5) % 7)));
}

std::string Win32Locale::DateText(const platform::Date& date) const {
  return Formatted(date, WithFullYear(LocaleText(Name(), LOCALE_SSHORTDATE))) + " " + Formatted(date, L"ddd");
}

std::string Win32Locale::LongDateText(const platform::Date& date) const {
  return Formatted(date, InWords(LocaleText(Name(), LOCALE_SLONGDATE)));
}

std::string Win32Locale::LongDayText(const platform::Date& date) const {
  return Formatted(date, kWeekday) + " " + LongDateText(date);
}

platform::DateReading Win32Locale::ReadDate(const std::string& text, int year) const {
  return typed_dates_.Read(text, year);
}

std::string Win32Locale::Formatted(const platform::Date& date, const std::wstring& format) const {
  SYSTEMTIME day{};
  day.wYear = static_cast<WORD>(date.Year());
  day.wMonth = static_cast<WORD>(date.Month());
  day.wDay = static_cast<WORD>(date.Day());
  std::array<wchar_t, 128> text{};
  const int length =
      GetDateFormatEx(Name(), 0, &day, format.c_str(), text.data(), static_cast<int>(text.size()), nullptr);
  return length > 0 ? FromWide(WithoutMarks(text.data())) : date.ToIso();
}

}  // namespace ferrowind::win32
