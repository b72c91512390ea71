#include "ferrowind/adapters/win32/controls/date_words.h"

#include <cstdlib>
#include <cwctype>
#include <vector>

#include "ferrowind/adapters/win32/base/locale_text.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {
namespace {

constexpr int kMonths = 12;

/// Whether the operator's language writes the month before the day.
bool MonthIsFirst() {
  const std::wstring pattern = LocaleText(LOCALE_NAME_USER_DEFAULT, LOCALE_SSHORTDATE);
  return pattern.find(L'M') < pattern.find(L'd');
}

std::wstring Folded(std::wstring text) {
  for (wchar_t& letter : text) letter = static_cast<wchar_t>(std::towlower(letter));
  return text;
}

/// The one month whose name begins so; nothing when none does, or several.
std::optional<int> MonthNamed(const std::wstring& beginning) {
  std::optional<int> found;
  for (int month = 1; month <= kMonths; ++month) {
    if (Folded(MonthName(month)).rfind(Folded(beginning), 0) != 0) continue;
    if (found) return std::nullopt;
    found = month;
  }
  return found;
}

struct Word {
  bool is_number;
  std::wstring text;
};

/// The numbers and the words of a text, without what stands between them.
std::vector<Word> WordsOf(const std::wstring& text) {
  std::vector<Word> words;
  bool continues = false;
  for (const wchar_t letter : text) {
    const bool is_digit = letter >= L'0' && letter <= L'9';
    if (!is_digit && std::iswalpha(letter) == 0) {
      continues = false;
      continue;
    }
    if (!continues || words.back().is_number != is_digit) words.push_back({is_digit, {}});
    words.back().text += letter;
    continues = true;
  }
  return words;
}

std::optional<platform::Date> DateOf(int year, int month, int day) {
  if (!platform::Date::IsValid(year, month, day)) return std::nullopt;
  return platform::Date(year, month, day);
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

std::optional<platform::Date> ReadDay(const std::wstring& text, int year) {
  std::optional<int> month;
  std::vector<int> numbers;
  for (const Word& word : WordsOf(text)) {
    constexpr std::size_t kLongestNumber = 4;
    if (word.is_number) {
      if (word.text.size() > kLongestNumber) return std::nullopt;
      numbers.push_back(static_cast<int>(std::wcstol(word.text.c_str(), nullptr, 10)));
    } else {
      if (month) return std::nullopt;
      month = MonthNamed(word.text);
      if (!month) return std::nullopt;
    }
  }
  const std::size_t without_year = month ? 1 : 2;
  if (numbers.size() == without_year + 1 && numbers.back() == year) numbers.pop_back();
  if (numbers.size() != without_year) return std::nullopt;
  if (month) return DateOf(year, *month, numbers[0]);
  return MonthIsFirst() ? DateOf(year, numbers[0], numbers[1]) : DateOf(year, numbers[1], numbers[0]);
}

}  // namespace ferrowind::win32
