#include "ferrowind/views/planning/assignment_check.h"

#include <utility>

#include "ferrowind/planning/assignment_preview.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/planning/fm_assign_preview.h"

namespace ferrowind {
namespace {

using almanac::RuleKind;
using planning::RuleToAssign;

/// Rules count the weekday from the first one of the database.
int WeekdayOf(const platform::Value& number, int first_weekday) {
  constexpr int kDaysOfWeek = 7;
  return (platform::ToInt32(number) + first_weekday - 2) % kDaysOfWeek + 1;
}

RuleToAssign RuleOf(const platform::ChosenRule& chosen, int first_weekday) {
  RuleToAssign rule;
  rule.id = platform::ToInt32(chosen.id);
  rule.kind = static_cast<RuleKind>(platform::ToInt32(chosen.type));
  rule.name = platform::ToTextOrEmpty(chosen.name);
  if (rule.kind == RuleKind::kWeekday) {
    rule.weekday = WeekdayOf(chosen.weekday, first_weekday);
  } else if (!chosen.date.IsEmpty()) {
    rule.date = platform::ToDate(chosen.date);
  }
  return rule;
}

}  // namespace

bool AssignmentCheck::BeforeAssign(const std::vector<platform::ChosenRule>& rules) {
  const platform::CalendarOnShow& target = scene_.Target();
  std::vector<RuleToAssign> chosen;
  chosen.reserve(rules.size());
  for (const platform::ChosenRule& rule : rules) chosen.push_back(RuleOf(rule, scene_.FirstWeekday()));
  const planning::CalendarRules calendar(target.currency_id, target.year, context_.tables);
  fmAssignPreview preview(context_.platform, planning::CalendarName(calendar.Owner(), target.year),
                          planning::PreviewAssignment(calendar, chosen, scene_.TargetDay()));
  preview.ShowModal();
  before_.reset();
  if (preview.IsConfirmed() && rules.size() > 1) before_ = planning::ActionCalls::Begin();
  return preview.IsConfirmed();
}

void AssignmentCheck::Closing() {
  if (!before_) return;
  const platform::CalendarOnShow& target = scene_.Target();
  const std::vector<planning::CalendarKey> keys{{target.currency_id, target.year}};
  context_.windows.Actions().Add(planning::ActionStack::Origin::kAssignment,
                                 planning::ActionCalls::Since(std::exchange(before_, std::nullopt), keys));
}

}  // namespace ferrowind
