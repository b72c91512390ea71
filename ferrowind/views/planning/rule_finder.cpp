#include "ferrowind/views/planning/rule_finder.h"

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/common/holiday_types.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::RecordSet;

FindBar::Kind OfType(const char* caption, std::int32_t type) {
  return {caption, [type] {
            return [type](const RecordSet& rules, RecordSet::Bookmark rule) {
              return platform::ToInt32(rules.Cell(rule, rules.FieldNamed("TID1"))) == type;
            };
          }};
}

}  // namespace

platform::WindowParts RuleFinder::Parts() {
  return {.controls = FindBar::Controls(),
          .tools = {{.id = kFindTool,
                     .caption = "Find...",
                     .category = "General",
                     .description = "Show only the rules that have what is typed",
                     .shortcut = "Ctrl+F"}},
          .bar = {kFindTool}};
}

RuleFinder::RuleFinder(const PlanningContext& context, platform::HolidaysScene& scene)
    : platform_(context.platform), bar_(platform_, scene.Window(), scene.Rules(), Subject()) {}

FindBar::Subject RuleFinder::Subject() {
  return {
      //: said
      .count = "%1 of %2 rules",
      //: said
      .kinds = {{"All rules"},
                OfType("Weekdays", holiday_type::kWeekday),
                OfType("Celebrations", holiday_type::kFullDate),
                OfType("Holiday points", holiday_type::kHolidayPoint)},
      // As the list shows them: a rule is of no year, or of a weekday.
      .names = {.of_date =
                    [this](const Date& date) {
                      return std::to_string(date.Day()) + " " + platform_.locale.MonthName(date.Month());
                    },
                .more = [this](const RecordSet& rules, RecordSet::Bookmark rule) -> std::string {
                  const auto& weekday = rules.Cell(rule, rules.FieldNamed("WD"));
                  if (weekday.IsEmpty()) return {};
                  return platform_.locale.WeekdayName(Date::FromSerial(platform::ToInt32(weekday)).Weekday());
                }}};
}

bool RuleFinder::RunTool(const std::string& id) {
  if (id != kFindTool) return false;
  bar_.Open();
  return true;
}

void RuleFinder::Closing() { bar_.Close(); }

}  // namespace ferrowind
