#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::almanac {

/// The rule that every database has: it makes a day a working day by exception.
inline constexpr std::int32_t kExceptionRule = 1;
/// What it is called.
//: said
inline constexpr const char* kExceptionName = "Working day by exception";

/// A day of a calendar that has a rule, a working day by exception among them.
struct MarkedDay {
  /// 1 to 366.
  std::int16_t day_of_year = 0;
  /// By exception a working day, otherwise closed.
  RuleKind kind = RuleKind::kWorkingDay;
  /// The number of the rule.
  std::int32_t rule = 0;
  /// The day's own text; empty without one.
  std::string comment = {};

  [[nodiscard]] bool IsClosed() const { return kind != RuleKind::kWorkingDay; }
  friend bool operator==(const MarkedDay&, const MarkedDay&) = default;
};

/// What the calendar of a currency and a year holds.
struct CalendarContent {
  int year = 0;
  /// The days that have a rule, ascending, each once. All others are ordinary working days; so are all days
  /// of a calendar that does not exist yet.
  std::vector<MarkedDay> days;

  friend bool operator==(const CalendarContent&, const CalendarContent&) = default;
};

}  // namespace ferrowind::almanac
