#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/planning/calendar_rules.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// A rule that somebody is about to assign to a calendar.
struct RuleToAssign {
  std::int32_t id = 0;
  almanac::RuleKind kind = almanac::RuleKind::kPoint;
  std::string name;
  /// Of a celebration and a point: the date that it is kept with, of whatever year.
  std::optional<platform::Date> date;
  /// Of a weekday rule: 1 Sunday to 7 Saturday; 0 of others.
  int weekday = 0;
};

/// What assigning a rule would do. Texts for operators, without full stops.
struct AssignmentLine {
  std::string rule = {};
  /// The day that takes the rule; nothing when there are several or none.
  std::optional<platform::Date> day = {};
  /// "every Saturday", for a weekday rule of a whole calendar.
  std::string days = {};
  /// What stands there by then: the name of a rule, with the day's text; how many days of several take the
  /// rule and how many stay.
  std::string now = {};
  /// Whether the calendar becomes another.
  bool changes = false;
  std::vector<std::string> warnings = {};
};

/// What assigning the rules, in that order, would do to the calendar; `day` is the day that they are assigned
/// to, nothing for the whole calendar.
[[nodiscard]] std::vector<AssignmentLine> PreviewAssignment(const CalendarRules& calendar,
                                                            const std::vector<RuleToAssign>& rules,
                                                            const std::optional<platform::Date>& day);

}  // namespace ferrowind::planning
