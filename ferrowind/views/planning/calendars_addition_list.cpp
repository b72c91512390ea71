#include "ferrowind/views/planning/calendars_addition_list.h"

#include <utility>

#include "ferrowind/data/run_handler.h"

namespace ferrowind {

CalendarsAdditionList::CalendarsAdditionList(Additions additions) : additions_(std::move(additions)) {}

void CalendarsAdditionList::TellEach(
    const std::function<void(platform::CalendarsAdditions& addition)>& what) {
  for (const auto& addition : additions_) RunStep([&] { what(*addition); });
}

void CalendarsAdditionList::AddColumns() {
  TellEach([](auto& addition) { addition.AddColumns(); });
}

void CalendarsAdditionList::Started() {
  TellEach([](auto& addition) { addition.Started(); });
}

bool CalendarsAdditionList::RunTool(const std::string& id) {
  bool is_run = false;
  TellEach([&](auto& addition) { is_run = is_run || addition.RunTool(id); });
  return is_run;
}

void CalendarsAdditionList::DaysShown() {
  TellEach([](auto& addition) { addition.DaysShown(); });
}

void CalendarsAdditionList::CurrentDayChanged() {
  TellEach([](auto& addition) { addition.CurrentDayChanged(); });
}

void CalendarsAdditionList::DayMenuOpens(bool is_of_day) {
  TellEach([=](auto& addition) { addition.DayMenuOpens(is_of_day); });
}

void CalendarsAdditionList::CalendarCreated(const platform::CalendarOnShow& calendar) {
  TellEach([&](auto& addition) { addition.CalendarCreated(calendar); });
}

void CalendarsAdditionList::Closing() {
  TellEach([](auto& addition) { addition.Closing(); });
}

}  // namespace ferrowind
