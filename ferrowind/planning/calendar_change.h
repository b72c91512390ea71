#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {

/// A JSON list of the dates of those days of the year, as `CldApplyPlan` takes them.
[[nodiscard]] std::string DatesJson(int year, std::span<const std::int16_t> days);

/// Gives days of the calendar what `days` says, the JSON list of `CldApplyPlan`: all of them or none, in one
/// call, which is one entry of the history. False, with nothing changed, when the calendar of the calling
/// thread's database is not as it was `seen` any more. Fails as database_call.h says; the description then
/// begins with what is done, `doing`, in which %1 is the calendar: "Excepting days of %1".
[[nodiscard]] bool ChangeSeenDays(const std::string& doing, const Currency& currency,
                                  const almanac::CalendarContent& seen, const std::string& days);

/// That somebody else has changed the calendar of that name, "EUR 2028", so that it was left as it is: a
/// sentence for operators.
[[nodiscard]] std::string ChangedMeanwhile(const std::string& calendar);

}  // namespace ferrowind::planning
