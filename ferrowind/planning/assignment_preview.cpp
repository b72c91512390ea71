#include "ferrowind/planning/assignment_preview.h"

#include <algorithm>
#include <map>
#include <utility>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/date_words.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/in_one_list.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/plan_words.h"

namespace ferrowind::planning {
namespace {

using almanac::MarkedDay;
using almanac::RuleKind;
using platform::Date;

std::string Weekday(int weekday) { return InWords(almanac::Weekday(weekday)); }

std::string Told(const Date& day) { return AttachedPlatform().locale.LongDayText(day); }

std::string Listed(const std::vector<Date>& days) {
  // Whoever assigns a rule everywhere needs no list of it.
  constexpr std::size_t kMost = 4;
  std::vector<std::string> items;
  for (const Date& day : days) {
    if (items.size() == kMost) break;
    items.push_back(Told(day));
  }
  if (days.size() > kMost) items.push_back(InWords(days.size() - kMost, "%n more", "%n more"));
  return InOneList(items);
}

class Preview {
 public:
  Preview(const CalendarRules& calendar, const std::optional<Date>& day) : calendar_(calendar), day_(day) {
    for (const MarkedDay& marked : calendar.Content().days) days_[marked.day_of_year] = marked;
  }

  AssignmentLine Assign(const RuleToAssign& rule) {
    AssignmentLine line{.rule = rule.name};
    if (rule.kind == RuleKind::kWeekday && !day_) {
      AssignEveryWeek(rule, line);
    } else if (rule.kind == RuleKind::kWeekday) {
      if (rule.weekday != day_->Weekday()) {
        line.warnings.push_back(InWords("Its weekday is %1, and the day is a %2",
                                        {Weekday(rule.weekday), Weekday(day_->Weekday())}));
      }
      AssignTo(*day_, rule, line);
    } else if (rule.date) {
      AssignDated(rule, line);
    } else {
      line.warnings.push_back(InWords("It has no date, so that nothing is assigned"));
    }
    WarnOfOwner(rule, line);
    return line;
  }

 private:
  void AssignEveryWeek(const RuleToAssign& rule, AssignmentLine& line) {
    line.days = InWords("every %1", {Weekday(rule.weekday)});
    std::size_t taken = 0;
    std::size_t kept = 0;
    std::size_t had = 0;
    const Date new_year(calendar_.Year(), 1, 1);
    for (int day = 1; day <= platform::DaysInYear(calendar_.Year()); ++day) {
      if (new_year.AddDays(day - 1).Weekday() != rule.weekday) continue;
      const auto marked = days_.find(day);
      if (marked != days_.end() && marked->second.kind != RuleKind::kWeekday) {
        ++kept;
      } else if (marked != days_.end() && marked->second.rule == rule.id) {
        ++had;
      } else {
        ++taken;
        days_[day] = {static_cast<std::int16_t>(day), rule.kind, rule.id, {}};
      }
    }
    line.changes = taken > 0;
    std::vector<std::string> parts{InWords(taken, "%n day takes it", "%n days take it")};
    if (had > 0) parts.push_back(InWords(had, "%n has it", "%n have it"));
    if (kept > 0) {
      parts.push_back(
          InWords(kept, "%n stays as holidays or exceptions", "%n stay as holidays or exceptions"));
    }
    line.now = InOneList(parts);
    WarnOfWeekday(rule, line);
  }

  void AssignDated(const RuleToAssign& rule, AssignmentLine& line) {
    const Date day = rule.date->AddYears(calendar_.Year() - rule.date->Year());
    const std::vector<Date> planned = calendar_.PlannedDaysOf(rule.name);
    const bool is_planned = std::find(planned.begin(), planned.end(), day) != planned.end();
    if (day_ && day != *day_)
      line.warnings.push_back(InWords("It goes to its own date, not to %1", {Told(*day_)}));
    if (rule.kind == RuleKind::kPoint && rule.date->Year() != calendar_.Year() && !is_planned) {
      line.warnings.push_back(
          InWords("It is dated for %1, on %2", {std::to_string(rule.date->Year()), Told(*rule.date)}));
    }
    if (!is_planned && !planned.empty()) {
      line.warnings.push_back(
          InWords("The book of %1 has it on %2", {UnmistakableCode(calendar_.Owner()), Listed(planned)}));
    }
    WarnOfDay(day, rule, line);
    AssignTo(day, rule, line);
  }

  void WarnOfDay(const Date& day, const RuleToAssign& rule, AssignmentLine& line) const {
    if (IsWeekend(day)) line.warnings.push_back(InWords("It falls on a %1", {Weekday(day.Weekday())}));
    std::vector<Date> elsewhere;
    for (const auto& [number, marked] : days_) {
      if (marked.rule == rule.id && number != day.DayOfYear()) elsewhere.push_back(DateOf(number));
    }
    if (!elsewhere.empty()) line.warnings.push_back(InWords("It stands on %1 already", {Listed(elsewhere)}));
  }

  void AssignTo(const Date& day, const RuleToAssign& rule, AssignmentLine& line) {
    line.day = day;
    const auto marked = days_.find(day.DayOfYear());
    line.now = marked == days_.end() ? InWords(kOrdinaryDay) : NameOf(marked->second);
    line.changes = marked == days_.end() || marked->second.rule != rule.id;
    if (marked != days_.end() && marked->second.rule == almanac::kExceptionRule) {
      line.warnings.push_back(InWords("The day is a working day by exception, and would be closed"));
    }
    days_[day.DayOfYear()] = {static_cast<std::int16_t>(day.DayOfYear()), rule.kind, rule.id, {}};
  }

  void WarnOfOwner(const RuleToAssign& rule, AssignmentLine& line) const {
    if (calendar_.IsInBook(rule.id)) return;
    const auto others = calendar_.OtherBooksOf(rule.id);
    if (others.empty()) return;
    //: said
    const char* const text = others.size() == 1 ? "It belongs to the book of %1, not to that of %2"
                                                : "It belongs to the books of %1, not to that of %2";
    line.warnings.push_back(InWords(text, {InOneList(others), UnmistakableCode(calendar_.Owner())}));
  }

  void WarnOfWeekday(const RuleToAssign& rule, AssignmentLine& line) const {
    if (calendar_.Plan() == nullptr || calendar_.IsInBook(rule.id)) return;
    const auto& days = calendar_.Plan()->Days();
    const bool closes = std::any_of(days.begin(), days.end(), [&](const almanac::PlannedDay& day) {
      return calendar_.Plan()->KindOf(day) == RuleKind::kWeekday &&
             calendar_.Plan()->DateOf(day).Weekday() == rule.weekday;
    });
    if (!closes) {
      line.warnings.push_back(InWords("The book of %1 does not close each %2",
                                      {UnmistakableCode(calendar_.Owner()), Weekday(rule.weekday)}));
    }
  }

  /// By what the calendar has there, else by its book; without one, as most of the world.
  [[nodiscard]] bool IsWeekend(const Date& day) const {
    const auto marked = days_.find(day.DayOfYear());
    if (marked != days_.end() && marked->second.kind == RuleKind::kWeekday) return true;
    const almanac::YearPlan* const plan = calendar_.Plan();
    if (plan == nullptr) return day.Weekday() == 1 || day.Weekday() == 7;
    const almanac::PlannedDay* const planned = plan->Find(day.DayOfYear());
    return planned != nullptr && plan->KindOf(*planned) == RuleKind::kWeekday;
  }

  [[nodiscard]] Date DateOf(int day_of_year) const {
    return Date(calendar_.Year(), 1, 1).AddDays(day_of_year - 1);
  }

  [[nodiscard]] std::string NameOf(const MarkedDay& day) const {
    const auto* const rule = calendar_.Rules().Find(day.rule);
    const std::string name = rule == nullptr ? InWords("rule %1", {std::to_string(day.rule)}) : rule->name;
    return day.comment.empty() ? name : name + ": " + day.comment;
  }

  const CalendarRules& calendar_;
  const std::optional<Date>& day_;
  /// The calendar with what was assigned so far, by the day of the year.
  std::map<int, MarkedDay> days_;
};

}  // namespace

std::vector<AssignmentLine> PreviewAssignment(const CalendarRules& calendar,
                                              const std::vector<RuleToAssign>& rules,
                                              const std::optional<Date>& day) {
  Preview preview(calendar, day);
  std::vector<AssignmentLine> lines;
  lines.reserve(rules.size());
  for (const RuleToAssign& rule : rules) lines.push_back(preview.Assign(rule));
  return lines;
}

}  // namespace ferrowind::planning
