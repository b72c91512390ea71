#include "ferrowind/views/holidays/holiday_list.h"

#include <utility>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/error_table.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/record_set_in.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/common/grid_setup.h"
#include "ferrowind/views/common/holiday_type_formats.h"
#include "ferrowind/views/common/holiday_types.h"
#include "ferrowind/views/common/value_list.h"

namespace ferrowind {
namespace {

using platform::RecordSet;
using platform::Value;

constexpr const char* kDelColumn = "Del";
constexpr const char* kTypeColumn = "HolidayType";
constexpr const char* kDateColumn = "FullDate";
constexpr platform::Color kGrey = {128, 128, 128};

/// A row is put back where it is below the row count.
void PutBack(platform::Grid& grid, const GridPosition& before) {
  if (before.first_visible_row < grid.RowCount()) grid.SetFirstVisibleRow(before.first_visible_row);
  if (before.current_row < grid.RowCount()) grid.SetCurrentRow(before.current_row);
  grid.SetCurrentColumn(before.current_column);
}

bool Equals(const Value& value, std::int32_t number) {
  return !value.IsEmpty() && platform::ToInt32(value) == number;
}

bool IsEmpty(const RecordSet& records) { return records.Bof() && records.Eof(); }

}  // namespace

HolidayList::HolidayList(const platform::Platform& platform, platform::Grid& grid,
                         std::function<void(const std::string&)> on_filter)
    : platform_(platform),
      grid_(grid),
      on_filter_(std::move(on_filter)),
      reload_(platform.toolkit, grid, grid, PutBack),
      host_columns_(platform, grid) {}

void HolidayList::SetHeaders(std::shared_ptr<GridFields> headers) {
  headers_ = std::move(headers);
  SetupGridColumns(grid_, *headers_);
  host_columns_.Follow(*headers_);
  for (const char* column : {kDelColumn, kTypeColumn}) {
    grid_.SortKeys().Add(grid_.ColumnByKey(column).Index(), platform::kSortAscending, 0);
  }
}

// Loading
// -------------------------------------------------------------------------------------------------------------

bool HolidayList::Load() {
  const SourceValues no_params;
  std::shared_ptr<SourceValues> results;
  const std::int32_t answer = ExecProc("CldAllInfo", &no_params, results);
  TellRead(platform_.action_observer, answer);
  const auto tell_lacking = [&](const std::string& what) {
    if (answer == 0) TellIncompleteRead(platform_.action_observer, what);
  };
  if (!RecordSetIn(results, "1")) {
    tell_lacking("the calendars");
    return false;
  }
  // What one step has loaded is kept when a later one fails.
  const auto holiday_types = RecordSetIn(results, "2");
  if (!holiday_types) {
    tell_lacking("the types of holidays");
    ShowErrorMessage(error_index::kCannotLoadHolidayTypes);
    return false;
  }
  holiday_types_ = holiday_types;
  const auto holidays = RecordSetIn(results, "3");
  if (!holidays) {
    tell_lacking("the rules");
    ShowErrorMessage(error_index::kCannotLoadHolidays);
    return false;
  }
  const auto setting = RecordSetIn(results, platform::ToText(results->Count()));
  if (!setting) {
    tell_lacking("the first weekday");
    ShowErrorMessage(error_index::kCannotLoadFirstWeekday);
    return false;
  }
  const auto first_weekday = LoadFirstWeekday(*setting);
  if (!first_weekday) return false;
  first_weekday_ = *first_weekday;
  if (!FillColumnValueList(grid_, kTypeColumn, *holiday_types_, "Description1", "TID1",
                           platform_.action_observer)) {
    if (IsEmpty(*holiday_types_)) tell_lacking("the types of holidays");
    return false;
  }
  FillGrid(choice_ ? choice_(holidays) : holidays);
  return true;
}

std::optional<std::int32_t> HolidayList::LoadFirstWeekday(const RecordSet& setting) const {
  try {
    return platform::ToInt32(setting["FirstDay"]);
  } catch (...) {
    const RuntimeFailureScope caught;
    TellFailedRead(platform_.action_observer);
    ShowErrorMessage(error_index::kCannotLoadFirstWeekday);
    return std::nullopt;
  }
}

void HolidayList::FillGrid(const std::shared_ptr<RecordSet>& holidays) {
  AddFormats();
  if (!filter_) {
    filter_.emplace(FieldNameOf(*headers_, kDelColumn), FieldNameOf(*headers_, kTypeColumn));
    ToggleFilter();
  }
  holidays->SetFilter(filter_->Text());
  reload_.Show(holidays);
}

void HolidayList::AddFormats() {
  grid_.AddFormat({.key = "FC_DeletedPoint",
                   .column_key = kDelColumn,
                   .comparison = platform::kFormatEqual,
                   .compared = kRemovedMark,
                   .fore_color = kGrey,
                   .bold = false,
                   .strike_through = true});
  AddHolidayTypeFormats(grid_);
}

void HolidayList::ToggleFilter() {
  filter_->Toggle();
  on_filter_(filter_->ButtonText());
}

// Rules
// ---------------------------------------------------------------------------------------------------------------

bool HolidayList::HasCurrentRule() const { return grid_.RowBookmark(grid_.CurrentRow()) != 0; }

bool HolidayList::IsCurrentRuleRemoved() const {
  return Equals(grid_.CellValue(grid_.CurrentRow(), kDelColumn), kRemovedMark);
}

std::vector<RecordSet::Bookmark> HolidayList::SelectedRows() const {
  std::vector<RecordSet::Bookmark> bookmarks;
  const std::vector<std::int32_t> rows =
      grid_.MultiSelect() ? grid_.SelectedRows() : std::vector<std::int32_t>{grid_.CurrentRow()};
  for (const std::int32_t row : rows) {
    // A group row is no rule.
    if (const auto bookmark = grid_.RowBookmark(row); bookmark != 0) bookmarks.push_back(bookmark);
  }
  return bookmarks;
}

std::vector<HolidayRule> HolidayList::SelectedRules() const {
  std::vector<HolidayRule> rules;
  for (const auto bookmark : SelectedRows()) {
    const RecordSet& rule = MoveTo(bookmark);
    rules.push_back({FieldOf(rule, kTypeColumn), FieldOf(rule, "ID_Holiday"), FieldOf(rule, kDateColumn)});
    if (platform_.action_observer != nullptr) {
      IgnoringFailure([&] { rules.back().name = platform::ToText(FieldOf(rule, "Name")); });
    }
  }
  return rules;
}

std::vector<platform::ChosenRule> HolidayList::ChosenRules() const {
  std::vector<platform::ChosenRule> rules;
  for (const auto bookmark : SelectedRows()) {
    const RecordSet& rule = MoveTo(bookmark);
    rules.push_back({FieldOf(rule, "ID_Holiday"), FieldOf(rule, kTypeColumn), FieldOf(rule, "Name"),
                     FieldOf(rule, kDateColumn), FieldOf(rule, "DayOfWeek")});
  }
  return rules;
}

RecordSet& HolidayList::MoveTo(RecordSet::Bookmark row) const {
  // The set that the grid shows, whatever was loaded since: its rows are the ones that bookmarks name.
  const auto shown = grid_.Records();
  if (!shown) throw platform::Failure(platform::failure_number::kObjectNotSet, "No holidays are shown");
  shown->MoveTo(row);
  return *shown;
}

const Value& HolidayList::FieldOf(const RecordSet& rule, const std::string& local_name) const {
  return rule[FieldNameOf(*headers_, local_name)];
}

std::shared_ptr<RecordSet> HolidayList::RecordsAt(RecordSet::Bookmark row) const {
  auto records = MoveTo(row).Clone();
  records->MoveTo(row);
  return records;
}

void HolidayList::ComputeText(RecordSet::Bookmark bookmark, std::int16_t column, std::string& text) {
  if (grid_.ColumnAt(column).Key() != kDateColumn) return;
  const RecordSet& rule = MoveTo(bookmark);
  if (Equals(FieldOf(rule, kTypeColumn), holiday_type::kWeekday)) {
    // The weekday number written as the day of that serial: 1 is a Sunday, by intention whatever the first
    // weekday is.
    const std::int32_t weekday = platform::ToInt32(FieldOf(rule, "DayOfWeek"));
    text = platform_.locale.WeekdayName(platform::Date::FromSerial(weekday).Weekday());
  } else {
    const platform::Date date = platform::ToDate(FieldOf(rule, kDateColumn));
    text = platform::ToText(date.Day()) + " " + platform_.locale.MonthName(date.Month());
  }
}

}  // namespace ferrowind
