#pragma once

#include <cstdint>

namespace ferrowind {

/// The codes of the holiday types, of days and of rules alike.
namespace holiday_type {
/// An ordinary working day, and the built-in rule of a working day by exception; no rule of this type is
/// made, listed or assigned.
inline constexpr std::int32_t kWorkingDay = 1;
/// "Holiday": a rule for a weekday.
inline constexpr std::int32_t kWeekday = 2;
/// "Celebration": a rule for a full date.
inline constexpr std::int32_t kFullDate = 3;
/// "Holiday point": a rule for a date that may move.
inline constexpr std::int32_t kHolidayPoint = 4;
}  // namespace holiday_type

}  // namespace ferrowind
