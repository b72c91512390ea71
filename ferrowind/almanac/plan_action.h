#pragma once

#include <cstdint>
#include <string_view>

namespace ferrowind::almanac {

/// What has to happen to a day so that the calendar is as planned.
enum class PlanAction : std::uint8_t {
  kKeep,
  /// An ordinary working day gets a rule.
  kAdd,
  /// A day gets another rule.
  kReplace,
  /// A day becomes an ordinary working day.
  kRemove,
  /// The day is a working day by exception, and the plan has a holiday or a weekend there.
  kException,
};

/// "keep", "add", "replace", "remove" or "exception".
[[nodiscard]] std::string_view TextOf(PlanAction action);

}  // namespace ferrowind::almanac
