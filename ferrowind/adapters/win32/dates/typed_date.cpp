#include "ferrowind/adapters/win32/dates/typed_date.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "ferrowind/adapters/win32/base/locale_text.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::win32 {
namespace {

using platform::Date;
using platform::DateReading;

constexpr int kMonths = 12;
constexpr int kDaysOfWeek = 7;
constexpr int kThisCentury = 2000;
constexpr std::size_t kShortestBeginning = 3;
constexpr std::size_t kDigitsOfYear = 4;

bool IsDigit(wchar_t letter) { return letter >= L'0' && letter <= L'9'; }

std::wstring Folded(const std::wstring& text) {
  std::wstring folded(text.size(), L'\0');
  if (text.empty()) return folded;
  LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_LOWERCASE, text.data(), static_cast<int>(text.size()),
                folded.data(), static_cast<int>(folded.size()), nullptr, nullptr, 0);
  return folded;
}

/// The letters of a name: abbreviations may end in a dot.
std::wstring LettersOf(const std::wstring& name) {
  std::wstring letters;
  std::copy_if(name.begin(), name.end(), std::back_inserter(letters),
               [](wchar_t letter) { return IsCharAlphaW(letter) != 0; });
  return Folded(letters);
}

/// A word may be of several parts, between which hyphens stand.
bool IsOfWord(const std::wstring& text, std::size_t place) {
  if (IsCharAlphaW(text[place]) != 0) return true;
  return text[place] == L'-' && place + 1 < text.size() && IsCharAlphaW(text[place + 1]) != 0;
}

/// The words of a date's format that are no letters of it: those in quotation marks.
std::vector<std::wstring> WordsIn(const std::wstring& format) {
  std::vector<std::wstring> words;
  bool is_quoted = false;
  std::wstring word;
  for (const wchar_t letter : format + L"'") {
    if (is_quoted && IsCharAlphaW(letter) != 0) {
      word += letter;
      continue;
    }
    if (!word.empty()) words.push_back(Folded(word));
    word.clear();
    if (letter == L'\'') is_quoted = !is_quoted;
  }
  return words;
}

/// The place of the list that has the word: as a whole, or as a beginning that no other list has.
std::optional<int> PlaceOf(const std::wstring& word, const std::vector<std::vector<std::wstring>>& lists) {
  std::vector<int> beginning;
  for (int place = 0; place < static_cast<int>(lists.size()); ++place) {
    const auto& names = lists[static_cast<std::size_t>(place)];
    if (std::find(names.begin(), names.end(), word) != names.end()) return place;
    const bool begins = std::any_of(names.begin(), names.end(),
                                    [&](const std::wstring& name) { return name.starts_with(word); });
    if (begins) beginning.push_back(place);
  }
  if (word.size() < kShortestBeginning || beginning.size() != 1) return std::nullopt;
  return beginning.front();
}

}  // namespace

struct TypedDates::Parts {
  struct Number {
    int value;
    std::size_t digits;
  };
  std::vector<Number> numbers;
  bool has_hyphens = false;
  /// From 1 on.
  std::optional<int> month;
  /// From 0, Monday, on.
  std::optional<int> weekday;
};

TypedDates::TypedDates(const wchar_t* locale)
    : fillers_{L"st", L"nd", L"rd", L"th", L"er", L"o", L"\u5E74", L"\u6708", L"\u65E5"} {
  const auto text = [locale](LCTYPE first, int place) {
    return LocaleText(locale, first + static_cast<LCTYPE>(place));
  };
  for (int month = 0; month < kMonths; ++month) {
    const std::wstring name = text(LOCALE_SMONTHNAME1, month);
    const std::wstring in_date = text(LOCALE_SMONTHNAME1 | LOCALE_RETURN_GENITIVE_NAMES, month);
    month_names_.push_back(FromWide(name));
    months_.push_back(
        {LettersOf(name), LettersOf(in_date), LettersOf(text(LOCALE_SABBREVMONTHNAME1, month))});
  }
  for (int day = 0; day < kDaysOfWeek; ++day) {
    const std::wstring name = text(LOCALE_SDAYNAME1, day);
    weekday_names_.push_back(FromWide(name));
    weekdays_.push_back({LettersOf(name), LettersOf(text(LOCALE_SABBREVDAYNAME1, day))});
  }
  const auto words = WordsIn(LocaleText(locale, LOCALE_SLONGDATE));
  fillers_.insert(fillers_.end(), words.begin(), words.end());
  const std::wstring order = LocaleText(locale, LOCALE_SSHORTDATE);
  is_day_first_ = order.find(L'd') < order.find(L'M');
}

DateReading TypedDates::Read(const std::string& text, int year) const {
  Parts parts;
  if (!TakeApart(Folded(ToWide(text)), parts)) return NoDate(year);
  auto& numbers = parts.numbers;
  const std::size_t without_year = parts.month ? 1 : 2;
  if (numbers.size() == without_year + 1) {
    const bool is_year_first = numbers.front().digits == kDigitsOfYear;
    const auto written = is_year_first ? numbers.begin() : numbers.end() - 1;
    if (written->digits != kDigitsOfYear && written->digits != 2) return NoDate(year);
    year = written->digits == 2 ? kThisCentury + written->value : written->value;
    numbers.erase(written);
    // The month comes before the day wherever the year comes before both.
    if (is_year_first && !parts.month) return Checked(parts, year, {numbers[1].value, numbers[0].value});
  }
  const auto is_year = [](const Parts::Number& number) { return number.digits > 2; };
  if (numbers.size() != without_year || std::any_of(numbers.begin(), numbers.end(), is_year))
    return NoDate(year);
  if (parts.month) return Checked(parts, year, {numbers[0].value, *parts.month});
  return OfNumbers(parts, year, numbers[0].value, numbers[1].value);
}

/// False for a text with a part that no date has.
bool TypedDates::TakeApart(const std::wstring& text, Parts& parts) const {
  const std::wstring between = L" .,/-\u00A0\u200E\u200F'";
  for (std::size_t begin = 0; begin < text.size();) {
    std::size_t end = begin;
    if (IsDigit(text[begin])) {
      while (end < text.size() && IsDigit(text[end])) ++end;
      if (end - begin > kDigitsOfYear) return false;
      parts.numbers.push_back({std::stoi(text.substr(begin, end - begin)), end - begin});
    } else if (IsCharAlphaW(text[begin]) != 0) {
      while (end < text.size() && IsOfWord(text, end)) ++end;
      if (!TakeWord(LettersOf(text.substr(begin, end - begin)), parts)) return false;
    } else {
      if (between.find(text[begin]) == std::wstring::npos) return false;
      parts.has_hyphens = parts.has_hyphens || text[begin] == L'-';
      ++end;
    }
    begin = end;
  }
  return true;
}

bool TypedDates::TakeWord(const std::wstring& word, Parts& parts) const {
  if (std::find(fillers_.begin(), fillers_.end(), word) != fillers_.end()) return true;
  if (const auto month = PlaceOf(word, months_); month && !parts.month) {
    parts.month = *month + 1;
    return true;
  }
  const auto weekday = PlaceOf(word, weekdays_);
  if (!weekday || parts.weekday) return false;
  parts.weekday = weekday;
  return true;
}

DateReading TypedDates::OfNumbers(const Parts& parts, int year, int first, int second) const {
  const DayAndMonth day_first{first, second};
  const DayAndMonth month_first{second, first};
  if (second > kMonths) return Checked(parts, year, month_first);
  if (first > kMonths || first == second) return Checked(parts, year, day_first);
  if (is_day_first_ && parts.has_hyphens) {
    return {.refusal = "This can be " + Named(day_first) + " or " + Named(month_first) +
                       ". Write the name of the month."};
  }
  return Checked(parts, year, is_day_first_ ? day_first : month_first);
}

DateReading TypedDates::Checked(const Parts& parts, int year, const DayAndMonth& read) const {
  if (read.month < 1 || read.month > kMonths) return NoDate(year);
  if (!Date::IsValid(year, read.month, read.day))
    return {.refusal = "There is no " + Named(read) + " in " + std::to_string(year) + "."};
  const Date date(year, read.month, read.day);
  // That of dates counts from Sunday.
  const int weekday = (date.Weekday() + kDaysOfWeek - 2) % kDaysOfWeek;
  if (parts.weekday && *parts.weekday != weekday) {
    return {.refusal = Named(read) + " " + std::to_string(year) + " is a " +
                       weekday_names_[static_cast<std::size_t>(weekday)] + "."};
  }
  return {.date = date};
}

DateReading TypedDates::NoDate(int year) const {
  constexpr DayAndMonth kExample{31, 12};
  return {.refusal = "This is no date. Write one such as " + Named(kExample) + " or " +
                     Date(std::clamp(year, 1, 9999), kExample.month, kExample.day).ToIso() + "."};
}

std::string TypedDates::Named(const DayAndMonth& read) const {
  return std::to_string(read.day) + " " + month_names_[static_cast<std::size_t>(read.month) - 1];
}

}  // namespace ferrowind::win32
