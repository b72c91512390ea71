#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/almanac/year_plan.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// The sentences of a plan, made when they are asked for.
class PlanReasons {
 public:
  /// `plan` must outlive the reasons.
  explicit PlanReasons(const YearPlan& plan) : plan_(plan) {}

  /// As the plan's functions of these names.
  [[nodiscard]] platform::Phrase WhyOf(int day_of_year) const;
  [[nodiscard]] platform::Phrase AlsoOn(int day_of_year) const;
  [[nodiscard]] std::string CommentOf(const PlannedDay& day) const;

 private:
  [[nodiscard]] platform::Phrase Reason(const PlannedDay& day) const;
  [[nodiscard]] platform::Phrase ReasonOfMove(const PlannedDay& day) const;
  [[nodiscard]] platform::Phrase ReasonOfBetween(const PlannedDay& day) const;
  [[nodiscard]] std::string NameOn(int day_of_year) const;
  [[nodiscard]] platform::Phrase ReasonOf(const YearPlan::Other& other) const;
  /// Whether the book's weekday rules close the day.
  [[nodiscard]] bool IsWeekend(std::int32_t serial) const;
  /// Whether another rule of the book names its moved days so too.
  [[nodiscard]] bool SharesMovedName(const BookRule& rule) const;
  [[nodiscard]] const BookRule& RuleOf(const PlannedDay& day) const { return plan_.Book().rules[day.rule]; }
  [[nodiscard]] std::int32_t SerialOfDay(int day_of_year) const;

  const YearPlan& plan_;
};

}  // namespace ferrowind::almanac
