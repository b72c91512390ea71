#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/platform/values/value.h"

namespace ferrowind {

/// The removal marks of a rule.
inline constexpr std::int16_t kRemovedMark = 2;
inline constexpr std::int16_t kRestoredMark = 4;

/// A rule as a row of the holiday list holds it; each value as stored, possibly empty.
struct HolidayRule {
  platform::Value type;
  platform::Value id;
  platform::Value full_date;
  /// For the host's observer alone; empty where there is none or the list has no names.
  std::string name = {};
};

/// The calendar that rules are assigned to, and how.
struct AssignmentTarget {
  std::int32_t mode = 0;
  std::int32_t year = 0;
  std::int32_t currency_id = 0;
  /// The day of the year that the window was opened for.
  std::int32_t day_of_year = 0;
};

/// Stores the assignment of the rule: the procedure's return value. A rule of a type that cannot be assigned
/// stores nothing and has none. A rule whose values cannot be read is a failure.
std::optional<std::int32_t> AssignRule(const HolidayRule& rule, const AssignmentTarget& target);

/// Sets the removal mark of the rule. The procedure's return value.
[[nodiscard]] std::int32_t MarkRule(const HolidayRule& rule, std::int16_t mark);

}  // namespace ferrowind
