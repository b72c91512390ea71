#include "ferrowind/planning/days_json.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>
#include <string>
#include <utility>

#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/json_text.h"

namespace ferrowind::planning {
namespace {

using almanac::ComparedDay;
using almanac::RuleKind;
using almanac::YearPlan;

constexpr const char* kOrdinaryWorkingDay = "\"TID1\":1";

/// What days become: the members of a JSON object that tell them apart. The texts of a rule that is new do
/// not.
std::string Becomes(const YearPlan& plan, const ComparedDay& day) {
  if (day.should == nullptr) return kOrdinaryWorkingDay;
  const RuleKind kind = plan.KindOf(*day.should);
  const std::string name = platform::JsonText(plan.NameOf(*day.should));
  // The name of the announced working day is the reason of the exception.
  if (kind == RuleKind::kWorkingDay) return std::string(kOrdinaryWorkingDay) + ",\"DayComment\":" + name;
  return "\"Name1\":" + name + ",\"TID1\":" + std::to_string(static_cast<int>(kind));
}

/// Where the rule stands among those of the book; days that become ordinary stand behind them all.
using Place = std::pair<std::size_t, bool>;

Place PlaceOf(const ComparedDay& day) {
  if (day.should == nullptr) return {std::numeric_limits<std::size_t>::max(), false};
  return {day.should->rule, day.should->standing == almanac::Standing::kSubstitute};
}

struct Days {
  Place place;
  /// Of the rule, if it has to be added.
  std::string comment;
  std::string dates;
};

}  // namespace

std::string DaysJson(const almanac::Comparison& comparison, const almanac::DayChoice& choice) {
  const YearPlan& plan = comparison.Plan();
  const platform::Date new_year(plan.Year(), 1, 1);
  std::map<std::string, Days> days_by_rule;
  for (const ComparedDay& day : comparison.Days()) {
    if (!day.Changes(choice)) continue;
    Days& days = days_by_rule.try_emplace(Becomes(plan, day), Days{PlaceOf(day), {}, {}}).first->second;
    days.place = std::min(days.place, PlaceOf(day));
    if (days.comment.empty() && day.should != nullptr && plan.KindOf(*day.should) != RuleKind::kWorkingDay) {
      days.comment = plan.CommentOf(*day.should);
    }
    if (!days.dates.empty()) days.dates += ',';
    days.dates += platform::JsonText(new_year.AddDays(day.day_of_year - 1).ToIso());
  }
  // New rules are numbered in this order, and so stand in the list of rules.
  std::map<Place, std::string> objects;
  for (const auto& [members, days] : days_by_rule) {
    std::string& json = objects[days.place];
    if (!json.empty()) json += ',';
    json += "{" + members;
    if (!days.comment.empty()) json += ",\"Comment\":" + platform::JsonText(days.comment);
    json += ",\"Dates\":[" + days.dates + "]}";
  }
  std::string list;
  for (const auto& [place, json] : objects) list += (list.empty() ? "" : ",") + json;
  return "[" + list + "]";
}

}  // namespace ferrowind::planning
