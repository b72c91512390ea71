#include "ferrowind/views/planning/day_finder.h"

#include <algorithm>
#include <memory>
#include <set>

#include "ferrowind/data/said.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/own_changes.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/common/holiday_types.h"
#include "ferrowind/views/planning/currency_on_show.h"
#include "ferrowind/views/planning/day_row.h"
#include "ferrowind/views/planning/day_text.h"
#include "ferrowind/views/planning/fm_go_to_date.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::RecordSet;

constexpr const char* kCategory = "General";
constexpr const char* kTypeField = "TID1";
constexpr const char* kRuleField = "ID2";

bool IsWorkingDay(const RecordSet& days, RecordSet::Bookmark day, std::size_t type_field) {
  return platform::ToInt32(days.Cell(day, type_field)) == holiday_type::kWorkingDay;
}

FindBar::Condition Holidays() {
  return [](const RecordSet& days, RecordSet::Bookmark day) {
    return !IsWorkingDay(days, day, days.FieldNamed(kTypeField));
  };
}

FindBar::Condition Exceptions() {
  return [](const RecordSet& days, RecordSet::Bookmark day) {
    return IsWorkingDay(days, day, days.FieldNamed(kTypeField)) &&
           !days.Cell(day, days.FieldNamed(kRuleField)).IsEmpty();
  };
}

/// Of the calendar's days those that the operator changed, whoever changed them since.
FindBar::Condition OwnChanges(const platform::CalendarsScene& scene) {
  std::shared_ptr<const std::set<int>> own_days;
  if (const auto calendar = scene.OnShow()) {
    own_days =
        std::make_shared<const std::set<int>>(planning::LoadOwnDays(calendar->currency_id, calendar->year));
  }
  return [own_days](const RecordSet& days, RecordSet::Bookmark day) {
    const auto date = platform::ToDate(days.Cell(day, days.FieldNamed("ODate")));
    return own_days != nullptr && own_days->contains(date.DayOfYear());
  };
}

}  // namespace

platform::WindowParts DayFinder::Parts() {
  return {.controls = FindBar::Controls(),
          .tools = {{.id = kFindTool,
                     .caption = "Find...",
                     .category = kCategory,
                     .description = "Show only the days that have what is typed",
                     .shortcut = "Ctrl+F"},
                    {.id = kGoToDateTool,
                     .caption = "Go to date...",
                     .category = kCategory,
                     .description = "Go to a date, of this or another year",
                     .shortcut = "Ctrl+D"}},
          .bar = {kFindTool, kGoToDateTool}};
}

DayFinder::DayFinder(const PlanningContext& context, platform::CalendarsScene& scene)
    : platform_(context.platform), scene_(scene), bar_(platform_, scene.Window(), scene.Days(), Subject()) {}

FindBar::Subject DayFinder::Subject() {
  return {
      //: said
      .count = "%1 of %2 days",
      //: said
      .kinds = {{"All days"},
                {"Holidays", Holidays},
                {"Exceptions", Exceptions},
                {"Changes of mine", [this] { return OwnChanges(scene_); }}},
      .names = {.of_date = [this](const Date& date) {
        return platform_.locale.DateText(date) + " " + DayText(platform_.locale, date) + " " + date.ToIso();
      }}};
}

bool DayFinder::RunTool(const std::string& id) {
  if (id == kFindTool) {
    if (scene_.OnShow()) bar_.Open();
    return true;
  }
  if (id != kGoToDateTool) return false;
  GoToDate();
  return true;
}

void DayFinder::Closing() { bar_.Close(); }

void DayFinder::GoToDate() {
  const auto calendar = scene_.OnShow();
  if (!calendar) return;
  fmGoToDate dialog(platform_, scene_.CurrentDay().value_or(Date(calendar->year, 1, 1)),
                    [this](const Date& day) { return WhyNotToShow(day); });
  dialog.ShowModal();
  const auto day = dialog.Chosen();
  if (!day) return;
  if (day->Year() != calendar->year) scene_.Choose(calendar->currency_id, day->Year());
  if (Focus(*day)) return;
  // It is left out, or in a group that is collapsed.
  bar_.Close();
  if (Focus(*day)) return;
  scene_.Days().ExpandAllGroups();
  Focus(*day);
}

std::string DayFinder::WhyNotToShow(const Date& day) const {
  const auto calendar = scene_.OnShow();
  if (!calendar || calendar->year == day.Year()) return {};
  const auto calendars = planning::LoadRules().calendars;
  const planning::CalendarKey wanted(calendar->currency_id, day.Year());
  if (std::find(calendars.begin(), calendars.end(), wanted) != calendars.end()) return {};
  return Said(platform_, "%1 has no calendar for %2.",
              {planning::UnmistakableCode(CurrencyOf(*calendar)), std::to_string(day.Year())});
}

bool DayFinder::Focus(const Date& day) {
  if (!GoToRowOf(scene_.Days(), day)) return false;
  scene_.Days().SetFocus();
  return true;
}

}  // namespace ferrowind
