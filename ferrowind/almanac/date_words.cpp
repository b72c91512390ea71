#include "ferrowind/almanac/date_words.h"

#include <algorithm>
#include <array>
#include <compare>
#include <cstddef>
#include <cstdlib>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {

using platform::Phrase;

namespace {

//: said
constexpr std::array<std::string_view, 8> kWeekdays = {"",          "Sunday",   "Monday", "Tuesday",
                                                       "Wednesday", "Thursday", "Friday", "Saturday"};
//: said
constexpr std::array<std::string_view, 13> kMonths = {
    "",     "January", "February",  "March",   "April",    "May",     "June",
    "July", "August",  "September", "October", "November", "December"};
//: said
constexpr std::array<std::string_view, 13> kNumbers = {
    "", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten", "eleven", "twelve"};
//: said
constexpr std::array<std::string_view, 6> kOrdinals = {"last", "first", "second", "third", "fourth", "fifth"};

}  // namespace

std::string_view WeekdayName(int weekday) { return kWeekdays.at(static_cast<std::size_t>(weekday)); }

std::optional<int> WeekdayNamed(std::string_view name) {
  constexpr std::size_t kShortest = 6;
  if (name.size() < kShortest) return std::nullopt;
  for (int weekday = 1; weekday <= 7; ++weekday) {
    if (std::is_eq(platform::CompareIgnoringCase(name, WeekdayName(weekday)))) return weekday;
  }
  return std::nullopt;
}

std::string_view MonthName(int month) { return kMonths.at(static_cast<std::size_t>(month)); }

Phrase Weekday(int weekday) { return Phrase::Of(std::string(WeekdayName(weekday))); }

Phrase DayAndMonth(int month, int day) {
  // The smaller is the later place, so that no other text is the same and each language has its own order.
  return Phrase::Of("%2 %1", {Phrase::Of(std::string(MonthName(month))), std::to_string(day)});
}

Phrase LongDate(std::int32_t serial) {
  const auto date = platform::Date::FromSerial(serial);
  return Phrase::Of("%3 %2 %1",
                    {std::to_string(date.Year()), Phrase::Of(std::string(MonthName(date.Month()))),
                     std::to_string(date.Day())});
}

Phrase LongDay(std::int32_t serial) {
  return Phrase::Of("%1 %2", {Weekday(platform::Date::FromSerial(serial).Weekday()), LongDate(serial)});
}

Phrase NumberWord(int number) {
  const auto position = static_cast<std::size_t>(number);
  if (number < 1 || position >= kNumbers.size()) return std::to_string(number);
  return Phrase::Of(std::string(kNumbers[position]));
}

Phrase AnyOf(WeekdaySet weekdays) {
  Phrase days;
  for (int k = 0; k < 7; ++k) {
    const int weekday = (k + 1) % 7 + 1;
    if (!weekdays.Contains(weekday)) continue;
    const Phrase day = Phrase::Of("a %1", {Weekday(weekday)});
    days = days.IsEmpty() ? day : Phrase::Of("%1 or %2", {days, day});
  }
  return days;
}

std::string_view OrdinalWord(int ordinal) { return kOrdinals.at(static_cast<std::size_t>(ordinal)); }

//: said
std::string_view RelationWords(Relation relation) {
  switch (relation) {
    case Relation::kOnOrAfter:
      return "on or after";
    case Relation::kAfter:
      return "after";
    case Relation::kOnOrBefore:
      return "on or before";
    case Relation::kBefore:
      return "before";
  }
  return {};
}

std::string UtcOffset(int minutes) {
  const int size = std::abs(minutes);
  return (minutes < 0 ? "-" : "+") + Digits(size / 60, 2) + ':' + Digits(size % 60, 2);
}

Phrase AYear() {
  return Phrase::Of("a year %1 to %2", {std::to_string(kFirstYear), std::to_string(kLastYear)});
}

std::optional<int> YearIn(std::string_view text) {
  constexpr std::size_t kDigits = 4;
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.size() != kDigits || !std::all_of(text.begin(), text.end(), is_digit)) return std::nullopt;
  int year = 0;
  for (const char c : text) year = year * 10 + (c - '0');
  if (year < kFirstYear || year > kLastYear) return std::nullopt;
  return year;
}

std::string Digits(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

}  // namespace ferrowind::almanac
