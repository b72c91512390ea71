#pragma once

#include <chrono>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// A day of the proleptic Gregorian calendar, years 1 to 9999, without a time of day or a time zone.
class FERROWIND_EXPORT Date {
 public:
  /// Precondition: `IsValid(year, month, day)`.
  Date(int year, int month, int day);
  /// Whether there is such a day in the years 1 to 9999; of any numbers.
  [[nodiscard]] static bool IsValid(int year, int month, int day);

  /// The day `serial` days after 30 December 1899, the origin of the platform's date serials (so 1 is a
  /// Sunday). A serial outside the years 1 to 9999 is the failure Overflow.
  [[nodiscard]] static Date FromSerial(std::int32_t serial);
  /// The days since 30 December 1899, negative before: what `FromSerial` takes.
  [[nodiscard]] std::int32_t Serial() const;

  /// Reads "YYYY-MM-DD" (ISO 8601 calendar date, extended format), nothing else; empty when it is not a day.
  [[nodiscard]] static std::optional<Date> FromIso(std::string_view text);
  /// "YYYY-MM-DD", which `FromIso` reads.
  [[nodiscard]] std::string ToIso() const;

  ///@{
  /// Year 1 to 9999, month 1 to 12, day 1 to 31.
  [[nodiscard]] int Year() const { return static_cast<int>(ymd_.year()); }
  [[nodiscard]] int Month() const { return static_cast<int>(static_cast<unsigned>(ymd_.month())); }
  [[nodiscard]] int Day() const { return static_cast<int>(static_cast<unsigned>(ymd_.day())); }
  ///@}
  /// 1 to 366.
  [[nodiscard]] int DayOfYear() const;
  /// 1 Sunday to 7 Saturday.
  [[nodiscard]] int Weekday() const;

  /// The same day and month `years` later (earlier when negative); 29 February becomes 28 February in a
  /// common year. A year outside 1 to 9999 is the failure Overflow.
  [[nodiscard]] Date AddYears(int years) const;
  /// The day that many days later, or earlier when negative; outside the years 1 to 9999 the failure
  /// Overflow.
  [[nodiscard]] Date AddDays(int days) const;

  /// The same day.
  friend bool operator==(const Date&, const Date&) = default;
  /// The earlier day is the lesser one.
  friend auto operator<=>(const Date& left, const Date& right) { return left.ymd_ <=> right.ymd_; }

 private:
  explicit Date(std::chrono::year_month_day ymd) : ymd_(ymd) {}

  std::chrono::year_month_day ymd_;
};

/// By the Gregorian rule, for every year.
[[nodiscard]] FERROWIND_EXPORT bool IsLeapYear(int year);
/// 365 or 366.
[[nodiscard]] FERROWIND_EXPORT int DaysInYear(int year);

}  // namespace ferrowind::platform
