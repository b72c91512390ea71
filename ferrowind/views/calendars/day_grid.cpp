#include "ferrowind/views/calendars/day_grid.h"

#include <utility>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/record_set_in.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/calendars/changed_days.h"
#include "ferrowind/views/calendars/node_key.h"
#include "ferrowind/views/common/grid_setup.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::Locale;
using platform::Value;

constexpr const char* kMonthName = "MonthName";

struct ComputedColumn {
  const char* key;
  Value (*compute)(const Date& date, const Locale& locale);
};

constexpr ComputedColumn kComputedColumns[] = {
    {"DayOfYear", [](const Date& date, const Locale&) { return Value(date.DayOfYear()); }},
    {"DayOfMonth", [](const Date& date, const Locale&) { return Value(date.Day()); }},
    {"Month", [](const Date& date, const Locale&) { return Value(date.Month()); }},
    {kMonthName,
     [](const Date& date, const Locale& locale) { return Value(locale.MonthName(date.Month())); }},
};

/// A row is put back only while the grid still has it.
void PutBack(platform::Grid& grid, const GridPosition& before) {
  const auto is_there = [&grid](std::int32_t row) { return row != 0 && row <= grid.RowCount(); };
  if (is_there(before.current_row)) grid.SetCurrentRow(before.current_row);
  if (is_there(before.first_visible_row)) grid.SetFirstVisibleRow(before.first_visible_row);
  if (before.current_column != 0) grid.SetCurrentColumn(before.current_column);
}

std::int32_t NextSortOrder(std::int32_t order) {
  switch (order) {
    case platform::kSortAscending:
      return platform::kSortNone;
    case platform::kSortDescending:
      return platform::kSortAscending;
    default:
      return platform::kSortDescending;
  }
}

}  // namespace

DayGrid::DayGrid(const platform::Platform& platform, Controls controls)
    : platform_(platform),
      controls_(std::move(controls)),
      reload_(platform.toolkit, controls_.grid, controls_.splitter, PutBack) {}

void DayGrid::ShowDaysOf(const std::optional<std::string>& node) {
  for (const auto& computed : kComputedColumns) controls_.grid.ColumnByKey(computed.key).SetUnbound(true);
  const auto currency_node = node ? controls_.tree.Parent(*node) : std::nullopt;
  if (!currency_node) {
    ShowNothing();
    return;
  }
  const platform::CalendarOnShow calendar{node_key::CurrencyOfCurrencyNode(*currency_node),
                                          controls_.tree.Text(*currency_node),
                                          node_key::YearOfCalendarNode(*node)};
  SourceValues params;
  params.Add("ID1", calendar.currency_id);
  params.Add("Year1", calendar.year);
  std::shared_ptr<SourceValues> results;
  const std::int32_t answer = ExecProc("CldGetMain", &params, results);
  TellRead(platform_.action_observer, answer);
  if (answer != 0) return;
  auto days = RecordSetIn(results, "1");
  if (!days) return TellIncompleteRead(platform_.action_observer, "the days");
  TellChanges(*node, *days);
  // A filling that fails may leave the days of either calendar.
  on_show_.reset();
  ShowRecords(std::move(days));
  days_node_ = *node;
  on_show_ = calendar;
}

void DayGrid::TellChanges(const std::string& node, const platform::RecordSet& days) {
  if (platform_.action_observer == nullptr || days_node_ != node) return;
  if (const auto shown = controls_.grid.Records()) {
    TellDaysReread(platform_.action_observer, ChangedDays(*shown, days));
  }
}

void DayGrid::ShowNothing() {
  on_show_.reset();
  controls_.grid.SetEnabled(false);
  controls_.on_fill();
  if (controls_.grid.Records()) reload_.ShowNothing();
}

void DayGrid::ShowRecords(std::shared_ptr<platform::RecordSet> days) {
  reload_.Show(std::move(days), [this] {
    controls_.grid.SetEnabled(true);
    controls_.on_fill();
  });
  current_node_ = controls_.tree.Selected();
}

void DayGrid::ComputeCell(platform::RecordSet::Bookmark bookmark, std::int16_t column, Value& receiver) {
  const std::string& key = controls_.grid.ColumnAt(column).Key();
  for (const auto& computed : kComputedColumns) {
    if (key != computed.key) continue;
    if (const auto date = DateOf(bookmark)) receiver = computed.compute(*date, platform_.locale);
    return;
  }
}

void DayGrid::ComputeOrder(platform::RecordSet::Bookmark bookmark, std::int16_t column, Value& receiver) {
  if (controls_.grid.ColumnAt(column).Key() != kMonthName) return;
  if (const auto date = DateOf(bookmark)) receiver = date->Month();
}

std::optional<Date> DayGrid::DateOf(platform::RecordSet::Bookmark bookmark) const {
  const auto days = controls_.grid.Records();
  if (!days) return std::nullopt;
  days->MoveTo(bookmark);
  return platform::ToDate((*days)[FieldNameOf(*headers_, "FullDate")]);
}

void DayGrid::CycleSortOrder(platform::GridColumn& column) {
  SharedServicesObject().SortGridByColumn(NextSortOrder(column.SortOrder()), controls_.grid, column);
}

void DayGrid::BeforeRegrouping() {
  regrouping_lock_ = std::make_unique<UpdateLock>(platform_.toolkit, controls_.form);
}

void DayGrid::AfterRegrouping() {
  // Held here, so that it ends with this call whatever the refresh does.
  const auto lock = std::move(regrouping_lock_);
  controls_.grid.Refresh(true);
}

}  // namespace ferrowind
