#include "ferrowind/views/calendars/day_grid.h"

#include <utility>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/record_set_in.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/calendars/node_key.h"
#include "ferrowind/views/common/grid_setup.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::Locale;
using platform::Value;

struct ComputedColumn {
  const char* key;
  Value (*compute)(const Date& date, const Locale& locale);
};

constexpr ComputedColumn kComputedColumns[] = {
    {"DayOfYear", [](const Date& date, const Locale&) { return Value(date.DayOfYear()); }},
    {"DayOfMonth", [](const Date& date, const Locale&) { return Value(date.Day()); }},
    {"Month", [](const Date& date, const Locale&) { return Value(date.Month()); }},
    {"MonthName",
     [](const Date& date, const Locale& locale) { return Value(locale.MonthName(date.Month())); }},
};

/// A row that the grid had before its rows were replaced is put back only while the grid still has it.
bool IsStillThere(std::int32_t row, const platform::Grid& grid) { return row != 0 && row <= grid.RowCount(); }

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
    : platform_(platform), controls_(std::move(controls)) {}

void DayGrid::ShowDaysOf(const std::optional<std::string>& node) {
  for (const auto& computed : kComputedColumns) controls_.grid.ColumnByKey(computed.key).SetUnbound(true);
  const auto currency_node = node ? controls_.tree.Parent(*node) : std::nullopt;
  if (!currency_node) {
    ShowNothing();
    return;
  }
  SourceValues params;
  params.Add("ID1", node_key::CurrencyOfCurrencyNode(*currency_node));
  params.Add("Year1", node_key::YearOfCalendarNode(*node));
  std::shared_ptr<SourceValues> results;
  if (ExecProc("CldGetMain", &params, results) != 0) return;
  if (auto days = RecordSetIn(results, "1")) ShowRecords(std::move(days));
}

void DayGrid::ShowNothing() {
  platform::Grid& grid = controls_.grid;
  grid.SetEnabled(false);
  controls_.on_fill();
  if (!grid.Records()) return;
  const UpdateLock lock(platform_.toolkit, controls_.splitter);
  SaveGridKeys(grid, sort_store_, group_store_);
  grid.HoldColumns();
  grid.AttachRecords(nullptr);
  RestoreGridKeys(grid, sort_store_, group_store_);
}

void DayGrid::ShowRecords(std::shared_ptr<platform::RecordSet> days) {
  platform::Grid& grid = controls_.grid;
  std::int32_t current_row = 0;
  std::int32_t first_visible_row = 0;
  std::int32_t current_column = 0;
  if (grid.Records()) {
    current_row = grid.CurrentRow();
    first_visible_row = grid.FirstVisibleRow();
    current_column = grid.CurrentColumn();
  }
  UpdateLock lock(platform_.toolkit, controls_.splitter);
  grid.SetEnabled(true);
  controls_.on_fill();
  SaveGridKeys(grid, sort_store_, group_store_);
  grid.HoldColumns();
  days_ = std::move(days);
  grid.AttachRecords(days_);
  grid.Rebind();
  RestoreGridKeys(grid, sort_store_, group_store_);
  if (IsStillThere(current_row, grid)) grid.SetCurrentRow(current_row);
  if (IsStillThere(first_visible_row, grid)) grid.SetFirstVisibleRow(first_visible_row);
  if (current_column != 0) grid.SetCurrentColumn(current_column);
  lock.Unlock();
  current_node_ = controls_.tree.Selected();
}

void DayGrid::ComputeCell(platform::RecordSet::Bookmark bookmark, std::int16_t column, Value& receiver) {
  const std::string& key = controls_.grid.ColumnAt(column).Key();
  for (const auto& computed : kComputedColumns) {
    if (key != computed.key) continue;
    days_->MoveTo(bookmark);
    receiver =
        computed.compute(platform::ToDate((*days_)[FieldNameOf(*headers_, "FullDate")]), platform_.locale);
    return;
  }
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
