#include "ferrowind/views/calendars/calendars_extension.h"

#include <utility>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/calendars/node_key.h"

namespace ferrowind {

using platform::CalendarsAdditions;

CalendarsExtension::CalendarsExtension(Surface surface) : window_(std::move(surface)) {}

void CalendarsExtension::Make(platform::Additions* additions) {
  if (additions == nullptr) return;
  RunStep([&] { additions_ = additions->ForCalendars(*this); });
}

void CalendarsExtension::Tell(const std::function<void(CalendarsAdditions& additions)>& what) {
  if (additions_) RunStep([&] { what(*additions_); });
}

void CalendarsExtension::AddColumns() {
  Tell([](auto& additions) { additions.AddColumns(); });
}

void CalendarsExtension::Started() {
  Tell([](auto& additions) { additions.Started(); });
}

void CalendarsExtension::RunTool(const std::string& id) {
  Tell([&](auto& additions) { additions.RunTool(id); });
}

void CalendarsExtension::CurrentDayChanged() {
  if (is_filling_) return;
  Tell([](auto& additions) { additions.CurrentDayChanged(); });
}

void CalendarsExtension::DayMenuOpens(bool is_of_day) {
  Tell([=](auto& additions) { additions.DayMenuOpens(is_of_day); });
}

void CalendarsExtension::CalendarCreated(const platform::CalendarOnShow& calendar) {
  Tell([&](auto& additions) { additions.CalendarCreated(calendar); });
}

void CalendarsExtension::Closing() {
  Tell([](auto& additions) { additions.Closing(); });
}

void CalendarsExtension::WhileFilling(const std::function<void()>& fill) {
  if (is_filling_) return fill();
  struct Filling {
    explicit Filling(bool& flag) : is_filling(flag) { is_filling = true; }
    ~Filling() { is_filling = false; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    bool& is_filling;
  };
  {
    const Filling filling(is_filling_);
    fill();
  }
  Tell([](auto& additions) { additions.DaysShown(); });
}

std::optional<platform::CalendarOnShow> CalendarsExtension::OnShow() const { return window_.days.OnShow(); }

std::optional<std::int32_t> CalendarsExtension::ChosenCurrency() const {
  const auto node = window_.tree.Selected();
  if (!node) return std::nullopt;
  return node_key::CurrencyOfCurrencyNode(window_.tree.Parent(*node).value_or(*node));
}

std::optional<platform::Date> CalendarsExtension::CurrentDay() const {
  std::optional<platform::Date> day;
  // A host may have given the column of the dates another content: then no day is known.
  IgnoringFailure([&] {
    const std::int32_t row = window_.grid.CurrentRow();
    if (window_.grid.RowBookmark(row) != 0) day = platform::ToDate(window_.grid.CellValue(row, "FullDate"));
  });
  return day;
}

}  // namespace ferrowind
