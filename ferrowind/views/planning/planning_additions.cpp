#include "ferrowind/views/planning/planning_additions.h"

#include <array>
#include <utility>

#include "ferrowind/data/said.h"
#include "ferrowind/views/planning/assignment_check.h"
#include "ferrowind/views/planning/calendars_addition_list.h"
#include "ferrowind/views/planning/calendars_silence.h"
#include "ferrowind/views/planning/day_dates.h"
#include "ferrowind/views/planning/day_finder.h"
#include "ferrowind/views/planning/exchange_tools.h"
#include "ferrowind/views/planning/follow_bar.h"
#include "ferrowind/views/planning/history_tools.h"
#include "ferrowind/views/planning/holidays_addition_list.h"
#include "ferrowind/views/planning/holidays_caption.h"
#include "ferrowind/views/planning/plan_year_tool.h"
#include "ferrowind/views/planning/refreshed_calendars.h"
#include "ferrowind/views/planning/rule_book_tool.h"
#include "ferrowind/views/planning/rule_finder.h"
#include "ferrowind/views/planning/rules_of_calendar.h"
#include "ferrowind/views/planning/stored_view.h"
#include "ferrowind/views/planning/why_pane.h"
#include "ferrowind/views/planning/year_beside_days.h"

namespace ferrowind {
namespace {

using platform::WindowParts;

/// An addition to a window: what it puts there, and how it is made.
template <typename Additions, typename Scene>
struct Entry {
  WindowParts (*parts)();
  std::unique_ptr<Additions> (*make)(const PlanningContext& context, Scene& scene);
};

template <typename Addition, typename Additions, typename Scene>
constexpr Entry<Additions, Scene> EntryOf() {
  return {&Addition::Parts, [](const PlanningContext& context, Scene& scene) -> std::unique_ptr<Additions> {
            return std::make_unique<Addition>(context, scene);
          }};
}

template <typename Addition>
constexpr auto Calendars = EntryOf<Addition, platform::CalendarsAdditions, platform::CalendarsScene>();
template <typename Addition>
constexpr auto Holidays = EntryOf<Addition, platform::HolidaysAdditions, platform::HolidaysScene>();

// The order of their controls and tools.
constexpr std::array kCalendarsAdditions{
    Calendars<RefreshedCalendars>, Calendars<DayDates>,      Calendars<FollowBar>,
    Calendars<DayFinder>,          Calendars<PlanYearTool>,  Calendars<RuleBookTool>,
    Calendars<HistoryTools>,       Calendars<ExchangeTools>, Calendars<WhyPane>,
    Calendars<YearBesideDays>,     Calendars<StoredView>,    Calendars<CalendarsSilence>,
};
constexpr std::array kHolidaysAdditions{
    Holidays<HolidaysCaption>,
    Holidays<RulesOfCalendar>,
    Holidays<AssignmentCheck>,
    Holidays<RuleFinder>,
};

template <typename Entries>
WindowParts PartsOf(const Entries& entries, const platform::Platform& platform) {
  WindowParts all;
  const auto append = [](auto& to, const auto& from) { to.insert(to.end(), from.begin(), from.end()); };
  for (const auto& entry : entries) {
    const WindowParts parts = entry.parts();
    append(all.controls, parts.controls);
    append(all.tools, parts.tools);
    append(all.bar, parts.bar);
    append(all.menu, parts.menu);
  }
  for (auto& tool : all.tools) tool = Said(platform, tool);
  for (auto& control : all.controls) control.text = Said(platform, control.text);
  return all;
}

template <typename List, typename Entries, typename Scene>
std::unique_ptr<List> MakeAll(const Entries& entries, const PlanningContext& context, Scene& scene) {
  typename List::Additions additions;
  for (const auto& entry : entries) additions.push_back(entry.make(context, scene));
  return std::make_unique<List>(std::move(additions));
}

}  // namespace

WindowParts PlanningAdditions::CalendarsParts() const {
  return PartsOf(kCalendarsAdditions, context_.platform);
}

WindowParts PlanningAdditions::HolidaysParts() const {
  return PartsOf(kHolidaysAdditions, context_.platform);
}

std::unique_ptr<platform::CalendarsAdditions> PlanningAdditions::ForCalendars(
    platform::CalendarsScene& scene) {
  return MakeAll<CalendarsAdditionList>(kCalendarsAdditions, context_, scene);
}

std::unique_ptr<platform::HolidaysAdditions> PlanningAdditions::ForHolidays(platform::HolidaysScene& scene) {
  return MakeAll<HolidaysAdditionList>(kHolidaysAdditions, context_, scene);
}

}  // namespace ferrowind
