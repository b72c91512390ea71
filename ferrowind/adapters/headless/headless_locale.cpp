#include "ferrowind/adapters/headless/headless_locale.h"

#include <array>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

using platform::Date;

namespace {

constexpr std::array kMonths = {"January", "February", "March",     "April",   "May",      "June",
                                "July",    "August",   "September", "October", "November", "December"};
constexpr std::array kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                  "Thursday", "Friday", "Saturday"};

template <typename Names>
std::string NameAt(const Names& names, int number) {
  if (number < 1 || number > static_cast<int>(names.size())) throw platform::InvalidArgument();
  return names[static_cast<std::size_t>(number) - 1];
}

}  // namespace

std::string HeadlessLocale::MonthName(int month) const { return NameAt(kMonths, month); }
std::string HeadlessLocale::WeekdayName(int weekday) const { return NameAt(kWeekdays, weekday); }

std::string HeadlessLocale::DateText(const Date& date) const {
  return date.ToIso() + " " + WeekdayName(date.Weekday()).substr(0, 3);
}

std::string HeadlessLocale::LongDateText(const Date& date) const {
  return std::to_string(date.Day()) + " " + MonthName(date.Month()) + " " + std::to_string(date.Year());
}

std::string HeadlessLocale::LongDayText(const Date& date) const {
  return WeekdayName(date.Weekday()) + " " + LongDateText(date);
}

platform::DateReading HeadlessLocale::ReadDate(const std::string& text, int year) const {
  constexpr std::size_t kLengthOfMonthAndDay = 5;
  std::string iso = text.substr(0, text.find(' '));
  if (iso.size() == kLengthOfMonthAndDay) iso = Date(year, 1, 1).ToIso().substr(0, 5) + iso;
  const auto date = Date::FromIso(iso);
  if (!date || (text.find(' ') != std::string::npos && text != DateText(*date))) {
    return {.refusal = "This is no date. Write one such as 2028-12-31."};
  }
  return {.date = date};
}

}  // namespace ferrowind::headless
