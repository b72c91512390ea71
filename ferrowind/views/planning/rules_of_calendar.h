#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ferrowind/planning/calendar_rules.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/views/planning/holidays_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Has the Holidays window list only the rules of its calendar's currency until the operator asks for all,
/// and tell in a column on which days of the calendar each rule is.
class RulesOfCalendar : public HolidaysAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();
  RulesOfCalendar(const PlanningContext& context, platform::HolidaysScene& scene);

  void Opening() override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> RulesToShow(
      std::shared_ptr<platform::RecordSet> rules) override;
  bool RunTool(const std::string& id) override;

 private:
  void TellDays(platform::RecordSet::Bookmark row, std::int16_t column, std::string& text) const;
  /// The number of the rule in that row; nothing where there is none.
  [[nodiscard]] std::optional<std::int32_t> RuleIn(const platform::RecordSet& rules,
                                                   platform::RecordSet::Bookmark row) const;

  PlanningContext context_;
  platform::HolidaysScene& scene_;
  /// Nothing when they could not be read; the list then is as it was without this.
  std::optional<planning::CalendarRules> rules_;
  platform::Subscription text_asked_;
};

}  // namespace ferrowind
