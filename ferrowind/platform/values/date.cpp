#include "ferrowind/platform/values/date.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {
namespace {

constexpr std::chrono::sys_days kSerialOrigin = std::chrono::year(1899) / 12 / 30;
constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;
constexpr std::chrono::sys_days kFirstDay = std::chrono::year(kFirstYear) / 1 / 1;
constexpr std::chrono::sys_days kLastDay = std::chrono::year(kLastYear) / 12 / 31;

std::chrono::year_month_day Ymd(int year, int month, int day) {
  return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}

std::optional<int> Digits(std::string_view text) {
  int number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + (c - '0');
  }
  return number;
}

}  // namespace

Date::Date(int year, int month, int day) : ymd_(Ymd(year, month, day)) {}

bool Date::IsValid(int year, int month, int day) {
  return year >= kFirstYear && year <= kLastYear && month >= 1 && month <= 12 && day >= 1 && day <= 31 &&
         Ymd(year, month, day).ok();
}

Date Date::FromSerial(std::int32_t serial) {
  const auto day = kSerialOrigin + std::chrono::days(serial);
  if (day < kFirstDay || day > kLastDay) throw Overflow();
  return Date(std::chrono::year_month_day(day));
}

std::int32_t Date::Serial() const {
  return static_cast<std::int32_t>((std::chrono::sys_days(ymd_) - kSerialOrigin).count());
}

std::optional<Date> Date::FromIso(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = Digits(text.substr(0, 4));
  const auto month = Digits(text.substr(5, 2));
  const auto day = Digits(text.substr(8, 2));
  if (!year || !month || !day || !IsValid(*year, *month, *day)) return std::nullopt;
  return Date(*year, *month, *day);
}

std::string Date::ToIso() const {
  std::string text = "0000-00-00";
  const auto put = [&text](std::size_t last, int number) {
    for (; number > 0; number /= 10) text[last--] = static_cast<char>('0' + number % 10);
  };
  put(3, Year());
  put(6, Month());
  put(9, Day());
  return text;
}

int Date::DayOfYear() const {
  const std::chrono::sys_days first = ymd_.year() / 1 / 1;
  return static_cast<int>((std::chrono::sys_days(ymd_) - first).count()) + 1;
}

int Date::Weekday() const {
  return static_cast<int>(std::chrono::weekday(std::chrono::sys_days(ymd_)).c_encoding()) + 1;
}

Date Date::AddYears(int years) const {
  const std::int64_t year = std::int64_t{Year()} + years;
  if (year < kFirstYear || year > kLastYear) throw Overflow();
  const int target = static_cast<int>(year);
  const int day = IsValid(target, Month(), Day()) ? Day() : 28;
  return {target, Month(), day};
}

Date Date::AddDays(int days) const {
  const std::int64_t serial = std::int64_t{Serial()} + days;
  if (serial != static_cast<std::int32_t>(serial)) throw Overflow();
  return FromSerial(static_cast<std::int32_t>(serial));
}

bool IsLeapYear(int year) { return std::chrono::year(year).is_leap(); }

int DaysInYear(int year) { return IsLeapYear(year) ? 366 : 365; }

}  // namespace ferrowind::platform
