#pragma once

#include <cstdint>
#include <optional>

#include "ferrowind/almanac/date_expression.h"

/// The anchors that each year has at most once, and what an expression makes of an anchor's day. Days are
/// serials
/// (`platform::Date`).
namespace ferrowind::almanac {

/// The first and the last day that something can be, from the first day of the year on, which is 0; negative
/// before it, 365 and more after the year.
struct DaySpan {
  int first = 0;
  int last = 0;
};

/// The day of the anchor that belongs to a year (an offset may take it out of the year); none in a year
/// without. Not for tables, weekdays and `between`, which have none.
[[nodiscard]] std::optional<std::int32_t> AnchorDay(const Anchor& anchor, int year);

/// Where within its year `AnchorDay` can be.
[[nodiscard]] DaySpan SpanOfAnchor(const Anchor& anchor);

/// The day on the step's weekday that is so related to `day`.
[[nodiscard]] std::int32_t TakeStep(const WeekdayStep& step, std::int32_t day);

/// How far from the day `TakeStep` can lead.
[[nodiscard]] DaySpan SpanOfStep(Relation relation);

/// `TakeStep` for all steps of an expression, the last first.
[[nodiscard]] std::int32_t TakeSteps(const DateExpression& expression, std::int32_t anchor_day);

}  // namespace ferrowind::almanac
