#include "ferrowind/adapters/headless/headless_grid.h"

#include <algorithm>
#include <iterator>

#include "ferrowind/adapters/grid_engine/value_order.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

using platform::Failure;
using platform::GridFormat;
using platform::RecordSet;
using platform::Value;
namespace failure_number = platform::failure_number;

HeadlessGrid::HeadlessGrid(ControlHost& host, std::string name, bool marks_row_ranges)
    : HeadlessControl(host, std::move(name)),
      sort_keys_(host.Log(), Name() + ".SortKeys", [this] { return ColumnCount(); }),
      group_keys_(host.Log(), Name() + ".GroupKeys", [this] { return ColumnCount(); }),
      marks_row_ranges_(marks_row_ranges) {}

// Columns
// -------------------------------------------------------------------------------------------------------

platform::GridColumn& HeadlessGrid::AddColumn(const std::string& caption, std::int32_t type,
                                              std::int32_t edit_type, const std::string& key) {
  core_.Record("AddColumn", {caption, type, edit_type, key});
  if (type != 0 || edit_type != 1) throw platform::InvalidArgument();
  const std::string folded = platform::FoldCase(key);
  if (std::any_of(columns_.begin(), columns_.end(),
                  [&](const auto& column) { return platform::FoldCase(column->Key()) == folded; })) {
    throw Failure(failure_number::kKeyNotUnique, "The grid " + Name() + " has a column " + key + " already");
  }
  const HeadlessGridColumn::Context context{core_.Log(), Name(),
                                            [this](std::int16_t index) { return sort_keys_.OrderOf(index); },
                                            [this] { computed_.clear(); }};
  const auto index = static_cast<std::int16_t>(ColumnCount() + 1);
  columns_.push_back(std::make_unique<HeadlessGridColumn>(context, index, key, caption));
  column_order_.push_back(key);
  return *columns_.back();
}

HeadlessGridColumn& HeadlessGrid::ColumnOf(const std::string& key) const {
  const std::string folded = platform::FoldCase(key);
  const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const auto& column) {
    return platform::FoldCase(column->Key()) == folded;
  });
  if (found == columns_.end()) {
    throw Failure(failure_number::kElementNotFound, "The grid " + Name() + " has no column " + key);
  }
  return **found;
}

platform::GridColumn& HeadlessGrid::ColumnAt(std::int32_t index) {
  if (index < 1 || index > ColumnCount()) throw platform::SubscriptOutOfRange();
  return *columns_[static_cast<std::size_t>(index) - 1];
}

void HeadlessGrid::MoveColumnBehind(const std::string& key, const std::string& other) {
  core_.Record("MoveColumnBehind", {key, other});
  const std::string& moved = ColumnOf(key).Key();
  const std::string& before = ColumnOf(other).Key();
  if (moved == before) return;
  std::erase(column_order_, moved);
  column_order_.insert(std::next(std::find(column_order_.begin(), column_order_.end(), before)), moved);
}

// Records
// -------------------------------------------------------------------------------------------------------

void HeadlessGrid::AttachRecords(std::shared_ptr<RecordSet> records) {
  core_.Record("AttachRecords", {records});
  const auto keep = core_.Keep();
  const auto first_dropped = columns_.begin() + static_cast<std::ptrdiff_t>(held_columns_);
  std::for_each(first_dropped, columns_.end(),
                [this](const auto& column) { std::erase(column_order_, column->Key()); });
  std::move(first_dropped, columns_.end(), std::back_inserter(dropped_columns_));
  columns_.erase(first_dropped, columns_.end());
  held_columns_ = 0;
  current_column_ = std::min(current_column_, ColumnCount());

  records_ = std::move(records);
  attached_.clear();
  for (std::size_t i = 0; records_ != nullptr && i < records_->RowCount(); ++i) {
    attached_.push_back(records_->BookmarkAt(i));
  }
  TakeShown();
  computed_.clear();
  sort_keys_.Drop();
  group_keys_.Drop();
  selected_.clear();
  selected_before_range_.clear();
  anchor_ = {};
  ApplyKeys();
  top_ = IdentityOf(rows_.empty() ? 0 : 1);
  MakeCurrent({});
}

void HeadlessGrid::Narrow(RowChoice choose) {
  core_.Record("Narrow", {static_cast<bool>(choose)});
  const auto keep = core_.Keep();
  choose_ = std::move(choose);
  TakeShown();
  Rearrange();
}

void HeadlessGrid::TakeShown() {
  bookmarks_ = attached_;
  if (!choose_ || records_ == nullptr) return;
  const RowCondition shows = choose_(records_);
  std::erase_if(bookmarks_, [&](RecordSet::Bookmark bookmark) { return !shows(bookmark); });
}

void HeadlessGrid::HoldColumns() {
  core_.Record("HoldColumns");
  held_columns_ = columns_.size();
}

void HeadlessGrid::Rebind() {
  core_.Record("Rebind");
  const auto keep = core_.Keep();
  computed_.clear();
  ApplyKeys();
  top_ = IdentityOf(rows_.empty() ? 0 : 1);
}

void HeadlessGrid::Refresh(bool recompute) {
  core_.Record("Refresh", {recompute});
  const auto keep = core_.Keep();
  if (recompute) computed_.clear();
  ApplyKeys();
}

void HeadlessGrid::ApplyKeys() {
  shown_sorts_ = sort_keys_.Keys();
  shown_groups_ = group_keys_.Keys();
  Rearrange();
}

GridArrangement HeadlessGrid::ShownArrangement() const {
  return {shown_groups_, shown_sorts_, [this](RecordSet::Bookmark bookmark, std::int16_t column) {
            return OrderOf(bookmark, *columns_[static_cast<std::size_t>(column) - 1]);
          }};
}

void HeadlessGrid::Rearrange() {
  const GridArrangement arrangement = ShownArrangement();
  rows_ = arrangement.Arrange(bookmarks_, collapsed_);
  const auto renew = [&](GridRowIdentity& identity) {
    if (identity.IsRecord()) identity.group_path = arrangement.PathOf(identity.bookmark);
  };
  for (auto* const identities : {&selected_, &selected_before_range_})
    std::for_each(identities->begin(), identities->end(), renew);
  renew(anchor_);
  renew(top_);
  top_ = OnShow(top_);
  if (top_.IsNone()) top_ = IdentityOf(rows_.empty() ? 0 : 1);
  // The path of a record is the grid's own business: the current row changes only when another one takes its
  // place.
  renew(current_);
  MakeCurrent(OnShow(current_));
}

// Rows
// ----------------------------------------------------------------------------------------------------------

void HeadlessGrid::SetCurrentRow(std::int32_t row) {
  core_.Record("SetCurrentRow", {row});
  RequireRow(row);
  const auto keep = core_.Keep();
  SelectOnly(row);
}

void HeadlessGrid::SelectOnly(std::int32_t row) {
  selected_.clear();
  selected_before_range_.clear();
  anchor_ = IdentityOf(row);
  if (row > 0) selected_.push_back(anchor_);
  MakeCurrent(anchor_);
}

void HeadlessGrid::SetFirstVisibleRow(std::int32_t row) {
  core_.Record("SetFirstVisibleRow", {row});
  RequireRow(row);
  if (row > 0) top_ = IdentityOf(row);
}

void HeadlessGrid::SetCurrentColumn(std::int32_t column) {
  core_.Record("SetCurrentColumn", {column});
  if (column < 0 || column > ColumnCount()) throw platform::SubscriptOutOfRange();
  current_column_ = column;
}

RecordSet::Bookmark HeadlessGrid::RowBookmark(std::int32_t row) const {
  RequireRow(row);
  return IdentityOf(row).bookmark;
}

Value HeadlessGrid::CellValue(std::int32_t row, const std::string& column_key) const {
  RequireRow(row);
  const HeadlessGridColumn& column = ColumnOf(column_key);
  const auto bookmark = IdentityOf(row).bookmark;
  return bookmark == 0 ? Value() : ValueOf(bookmark, column);
}

void HeadlessGrid::SetMultiSelect(bool multi_select) {
  core_.Record("SetMultiSelect", {multi_select});
  if (multi_select_ && !multi_select) SelectOnly(CurrentRow());
  multi_select_ = multi_select;
}

std::vector<std::int32_t> HeadlessGrid::SelectedRows() const {
  return RecordRowsOf(multi_select_ ? selected_ : std::vector<GridRowIdentity>{current_});
}

std::vector<std::int32_t> HeadlessGrid::MarkedRows() const {
  std::vector<std::int32_t> rows = RecordRowsOf(Marked());
  std::sort(rows.begin(), rows.end());
  return rows;
}

std::vector<GridRowIdentity> HeadlessGrid::Marked() const {
  return multi_select_ || marks_row_ranges_ ? selected_ : std::vector<GridRowIdentity>{current_};
}

std::vector<std::int32_t> HeadlessGrid::RecordRowsOf(const std::vector<GridRowIdentity>& rows) const {
  std::vector<std::int32_t> record_rows;
  for (const auto& identity : rows) {
    const std::int32_t row = RowOf(identity);
    if (identity.IsRecord() && row > 0) record_rows.push_back(row);
  }
  return record_rows;
}

Value HeadlessGrid::ValueOf(RecordSet::Bookmark bookmark, const HeadlessGridColumn& column) const {
  if (!column.Unbound()) {
    const auto field = records_->FindField(column.BoundField());
    return field ? records_->Cell(bookmark, *field) : Value();
  }
  const auto place = std::pair(bookmark, column.Index());
  if (const auto computed = computed_.find(place); computed != computed_.end()) return computed->second;
  Value value;
  unbound_value_.Emit(bookmark, column.Index(), value);
  computed_[place] = value;
  return value;
}

Value HeadlessGrid::OrderOf(RecordSet::Bookmark bookmark, const HeadlessGridColumn& column) const {
  Value order = ValueOf(bookmark, column);
  if (column.Unbound()) unbound_order_.Emit(bookmark, column.Index(), order);
  return order;
}

std::int32_t HeadlessGrid::RowOf(const GridRowIdentity& identity) const {
  if (identity.IsNone()) return 0;
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [&](const GridRow& row) { return row.identity == identity; });
  return found == rows_.end() ? 0 : static_cast<std::int32_t>(found - rows_.begin()) + 1;
}

GridRowIdentity HeadlessGrid::IdentityOf(std::int32_t row) const {
  return row == 0 ? GridRowIdentity{} : RowAt(row).identity;
}

GridRowIdentity HeadlessGrid::OnShow(const GridRowIdentity& identity) const {
  if (RowOf(identity) > 0) return identity;
  for (const auto& path : GroupPathsTo(identity.group_path)) {
    if (collapsed_.contains(path) && RowOf({0, path}) > 0) return {0, path};
  }
  return {};
}

void HeadlessGrid::RequireRow(std::int32_t row) const {
  if (row < 0 || row > RowCount()) throw platform::SubscriptOutOfRange();
}

void HeadlessGrid::MakeCurrent(const GridRowIdentity& identity) {
  const bool is_same = identity == current_;
  current_ = identity;
  if (!is_same) current_row_changed_.Emit();
}

// Looks
// ---------------------------------------------------------------------------------------------------------

void HeadlessGrid::AddFormat(const GridFormat& format) {
  core_.Record("AddFormat", {format.key, format.column_key, format.comparison, format.compared});
  if (format.comparison != platform::kFormatEqual) throw platform::InvalidArgument();
  const auto found = std::find_if(formats_.begin(), formats_.end(),
                                  [&](const GridFormat& other) { return other.key == format.key; });
  if (found != formats_.end()) {
    *found = format;
  } else {
    formats_.push_back(format);
  }
}

void HeadlessGrid::SetGroupByBoxVisible(bool visible) {
  core_.Record("SetGroupByBoxVisible", {visible});
  group_by_box_visible_ = visible;
}

void HeadlessGrid::ExpandAllGroups() {
  core_.Record("ExpandAllGroups");
  const auto keep = core_.Keep();
  collapsed_.clear();
  Rearrange();
}

void HeadlessGrid::CollapseAllGroups() {
  core_.Record("CollapseAllGroups");
  const auto keep = core_.Keep();
  const GridArrangement arrangement = ShownArrangement();
  for (const auto bookmark : bookmarks_) {
    for (auto& path : GroupPathsTo(arrangement.PathOf(bookmark))) collapsed_.insert(std::move(path));
  }
  Rearrange();
}

void HeadlessGrid::ExpandSelection() {
  core_.Record("ExpandSelection");
  const auto keep = core_.Keep();
  for (const auto& identity : Marked()) ExpandAround(identity);
  Rearrange();
}

void HeadlessGrid::ExpandAround(const GridRowIdentity& identity) {
  for (const auto& path : GroupPathsTo(identity.group_path)) collapsed_.erase(path);
  if (identity.IsRecord() || identity.IsNone()) return;
  std::erase_if(collapsed_, [&](const std::string& path) { return path.starts_with(identity.group_path); });
}

std::string HeadlessGrid::ShownText(const HeadlessGridColumn& column, const Value& value) const {
  if (const auto* values = column.Values()) {
    if (auto text = values->FindText(value)) return *std::move(text);
  }
  return value.IsObject() ? std::string() : platform::ToTextOrEmpty(value);
}

bool HeadlessGrid::IsGroupRow(std::int32_t row) const { return !RowAt(row).identity.IsRecord(); }

std::string HeadlessGrid::CellText(std::int32_t row, const std::string& column_key) const {
  const GridRow& shown = RowAt(row);
  if (!shown.identity.IsRecord()) {
    const HeadlessGridColumn& column = *columns_[static_cast<std::size_t>(shown.group_column) - 1];
    return ShownText(column, ValueOf(shown.first_record, column));
  }
  const HeadlessGridColumn& column = ColumnOf(column_key);
  std::string text = ShownText(column, ValueOf(shown.identity.bookmark, column));
  cell_text_.Emit(shown.identity.bookmark, column.Index(), text);
  return text;
}

GridRowStyle HeadlessGrid::RowStyle(std::int32_t row) const {
  GridRowStyle style;
  std::optional<bool> bold;
  std::optional<bool> strike_through;
  for (const GridFormat& format : formats_) {
    if (!Applies(format, row)) continue;
    if (!style.fore_color) style.fore_color = format.fore_color;
    if (!bold) bold = format.bold;
    if (!strike_through) strike_through = format.strike_through;
  }
  style.bold = bold.value_or(false);
  style.strike_through = strike_through.value_or(false);
  return style;
}

bool HeadlessGrid::Applies(const GridFormat& format, std::int32_t row) const {
  const std::string key = platform::FoldCase(format.column_key);
  const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const auto& column) {
    return platform::FoldCase(column->Key()) == key;
  });
  if (found == columns_.end() || IsGroupRow(row)) return false;
  const Value value = ValueOf(RowAt(row).identity.bookmark, **found);
  if (!(*found)->HasValueList()) return grid_engine::SameValue(value, format.compared);
  return grid_engine::SameValue(ShownText(**found, value), format.compared);
}

}  // namespace ferrowind::headless
