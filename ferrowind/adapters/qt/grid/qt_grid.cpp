#include "ferrowind/adapters/qt/grid/qt_grid.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_model.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/grid/group_by_box.h"
#include "ferrowind/adapters/qt/grid/row_keeper.h"
#include "ferrowind/adapters/qt/grid/selection_order.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

using platform::RecordSet;
using platform::Value;

namespace {

/// The widths that fewer records ask for, or a column without texts, may not do for what the operator is
/// about to add.
constexpr std::uint32_t kRecordsThatSettleWidths = 50;

}  // namespace

QtGrid::QtGrid(GridWidget& widget)
    : QtControl(widget),
      widget_(widget),
      view_(widget.View()),
      header_(widget.View().Header()),
      content_(Name(), {[this](grid_content::StoredColumn& column) { ShowColumnVisibility(column); },
                        [this] {
                          is_stale_ = true;
                          widths_are_due_ = true;
                          model_->CellsChanged();
                        },
                        [this] { is_stale_ = true; }, [this] { ShowCaptions(); }}),
      operations_(content_.Columns(), content_.SortKeys(), content_.GroupKeys(),
                  {[this] { Refresh(false); }, [this] { Raise(before_group_change_); },
                   [this] { RefreshAfterGroupChange(); }}),
      context_(std::make_unique<QObject>()),
      model_(new GridModel(content_, context_.get())) {
  view_.setModel(model_);
  // The table has the focus, so it is the one that is read out.
  view_.setAccessibleName(widget.accessibleName());
  selection_ = new SelectionOrder(*view_.selectionModel(), context_.get());
  ConnectView();
  ConnectGroupBox();
}

QtGrid::~QtGrid() { view_.setModel(nullptr); }

void QtGrid::Mute() {
  QtControl::Mute();
  content_.Cells().Mute();
}

// Columns

platform::GridColumn& QtGrid::AddColumn(const std::string& caption, std::int32_t type, std::int32_t edit_type,
                                        const std::string& key) {
  // Refused before the model announces anything.
  grid_content::StoredColumn* added = nullptr;
  content_.Columns().RequireAddable(type, edit_type, key);
  model_->AppendColumn([&] { added = &content_.Columns().Add(caption, key); });
  content_.Cells().BindFields();
  widths_are_due_ = true;
  return *added;
}

std::int32_t QtGrid::ColumnCount() const { return content_.Columns().Count(); }
platform::GridColumn& QtGrid::ColumnByKey(const std::string& key) { return content_.Columns().ByKey(key); }
platform::GridColumn& QtGrid::ColumnAt(std::int32_t index) { return content_.Columns().At(index); }

std::vector<std::string> QtGrid::ColumnOrder() const {
  std::vector<std::string> keys;
  for (int visual = 0; visual < header_.count(); ++visual)
    keys.push_back(content_.Columns()[header_.logicalIndex(visual) + 1].Key());
  return keys;
}

void QtGrid::MoveColumnBehind(const std::string& key, const std::string& other) {
  const int moved = content_.Columns().ByKey(key).Index() - 1;
  const int before = content_.Columns().ByKey(other).Index() - 1;
  if (moved == before) return;
  const int from = header_.visualIndex(moved);
  const int to = header_.visualIndex(before);
  // The one that leaves its place makes those behind it move up.
  header_.moveSection(from, from < to ? to : to + 1);
}

void QtGrid::ShowColumnVisibility(const grid_content::StoredColumn& column) {
  header_.setSectionHidden(column.Index() - 1, !column.Visible());
  widths_are_due_ = true;
  if (column.Visible()) FitColumns();
}

void QtGrid::ShowCaptions() {
  ShowKeys();
  // Group rows name their column.
  model_->CellsChanged();
  widths_are_due_ = true;
  FitColumns();
}

void QtGrid::FitColumns() {
  if (content_.Cells().RecordCount() == 0 || !std::exchange(widths_are_due_, false)) return;
  for (std::int32_t index = 1; index <= ColumnCount(); ++index) {
    if (!content_.Columns()[index].Visible() || settled_widths_.contains(index)) continue;
    const int width = view_.FittingWidth(index - 1);
    header_.resizeSection(index - 1, width);
    const bool has_many_texts =
        content_.Cells().RecordCount() >= kRecordsThatSettleWidths &&
        (content_.Columns()[index].Unbound() || width > header_.FittingWidth(index - 1));
    if (has_many_texts) settled_widths_.insert(index);
  }
}

// Records

std::shared_ptr<RecordSet> QtGrid::Records() const { return content_.Cells().Records(); }
void QtGrid::HoldColumns() { content_.Columns().Hold(); }

void QtGrid::AttachRecords(std::shared_ptr<RecordSet> records) {
  {
    const QScopedValueRollback<bool> keeping(keeps_rows_, true);
    model_->Reset([&] { content_.Attach(std::move(records)); });
    widths_are_due_ = true;
    settled_widths_.erase(settled_widths_.upper_bound(ColumnCount()), settled_widths_.end());
    if (view_.CurrentColumn() > ColumnCount()) view_.SetCurrentColumn(ColumnCount());
    view_.SetFirstVisibleRow(0);
    is_stale_ = false;
    ShowKeys();
  }
  NoteCurrentRow();
}

void QtGrid::Narrow(RowChoice choose) {
  KeepRowsDuring([&] { model_->Reset([&] { content_.Narrow(std::move(choose)); }); });
  NoteCurrentRow();
}

void QtGrid::Rebind() {
  if (is_stale_) {
    RearrangeRows([this] { content_.Rebind(); });
  } else {
    content_.Cells().BindFields();
    content_.Cells().ForgetComputed();
    model_->CellsChanged();
  }
  FitColumns();
  view_.SetFirstVisibleRow(0);
}

void QtGrid::Refresh(bool recompute) {
  RearrangeRows([&] { content_.Arrange(recompute); });
  FitColumns();
}

void QtGrid::RearrangeRows(const std::function<void()>& change) {
  KeepRowsDuring([&] { model_->Reset(change); });
  is_stale_ = false;
  ShowKeys();
  NoteCurrentRow();
}

void QtGrid::KeepRowsDuring(const std::function<void()>& change) {
  const QScopedValueRollback<bool> keeping(keeps_rows_, true);
  const RowKeeper keeper(view_, *selection_);
  change();
  keeper.PutBack(view_, *selection_);
}

void QtGrid::ShowKeys() {
  model_->HeadersChanged();
  std::vector<GroupChipText> chips;
  for (std::int32_t position = 1; position <= content_.GroupKeys().Count(); ++position) {
    const auto key = content_.GroupKeys().Item(position);
    chips.push_back({key->ColIndex - 1, ToQt(content_.Columns()[key->ColIndex].Caption()),
                     key->SortOrder == platform::kSortDescending});
  }
  widget_.Box().SetChips(chips);
}

// Rows

void QtGrid::RequireRow(std::int32_t row) const {
  if (row < 0 || row > RowCount()) throw platform::SubscriptOutOfRange();
}

std::int32_t QtGrid::RowCount() const { return static_cast<std::int32_t>(content_.Rows().RowCount()); }
std::int32_t QtGrid::CurrentRow() const { return view_.currentIndex().row() + 1; }

void QtGrid::SetCurrentRow(std::int32_t row) {
  RequireRow(row);
  view_.SetCurrentRow(row - 1);
  NoteCurrentRow();
}

std::int32_t QtGrid::FirstVisibleRow() const { return view_.FirstVisibleRow() + 1; }

void QtGrid::SetFirstVisibleRow(std::int32_t row) {
  RequireRow(row);
  if (row > 0) view_.SetFirstVisibleRow(row - 1);
}

std::int32_t QtGrid::CurrentColumn() const { return view_.CurrentColumn(); }

void QtGrid::SetCurrentColumn(std::int32_t column) {
  if (column < 0 || column > ColumnCount()) throw platform::SubscriptOutOfRange();
  view_.SetCurrentColumn(column);
}

RecordSet::Bookmark QtGrid::RowBookmark(std::int32_t row) const {
  RequireRow(row);
  if (row == 0) return 0;
  const auto record = content_.RecordInRow(static_cast<std::uint32_t>(row - 1));
  return record ? content_.Cells().BookmarkOf(*record) : 0;
}

Value QtGrid::CellValue(std::int32_t row, const std::string& column_key) const {
  RequireRow(row);
  const grid_content::StoredColumn& column = content_.Columns().ByKey(column_key);
  if (row == 0) return {};
  const auto record = content_.RecordInRow(static_cast<std::uint32_t>(row - 1));
  return record ? content_.Cells().CellValue(column.Index(), *record) : Value();
}

bool QtGrid::MultiSelect() const { return view_.selectionMode() == QAbstractItemView::ExtendedSelection; }

void QtGrid::SetMultiSelect(bool multi_select) { SetSelectionMode(multi_select, marks_row_ranges_); }

void QtGrid::SetMarksRowRanges(bool marks_row_ranges) { SetSelectionMode(MultiSelect(), marks_row_ranges); }

void QtGrid::SetSelectionMode(bool multi_select, bool marks_row_ranges) {
  marks_row_ranges_ = marks_row_ranges;
  const auto mode_without =
      marks_row_ranges ? QAbstractItemView::ContiguousSelection : QAbstractItemView::SingleSelection;
  const auto mode = multi_select ? QAbstractItemView::ExtendedSelection : mode_without;
  if (mode == view_.selectionMode()) return;
  view_.setSelectionMode(mode);
  if (!multi_select && CurrentRow() > 0) view_.SetCurrentRow(CurrentRow() - 1);
}

std::vector<std::int32_t> QtGrid::SelectedRows() const {
  std::vector<std::int32_t> rows;
  const auto add_record = [&](int row) {
    if (content_.RecordInRow(static_cast<std::uint32_t>(row))) rows.push_back(row + 1);
  };
  if (!MultiSelect()) {
    if (CurrentRow() > 0) add_record(CurrentRow() - 1);
    return rows;
  }
  for (const SelectionOrder::Range& range : selection_->Ranges()) {
    for (int row = range.first; row <= range.last; ++row) add_record(row);
  }
  return rows;
}

std::vector<std::int32_t> QtGrid::MarkedRows() const {
  std::vector<std::int32_t> rows;
  for (const int row : MarkedViewRows()) {
    if (content_.RecordInRow(static_cast<std::uint32_t>(row))) rows.push_back(row + 1);
  }
  return rows;
}

void QtGrid::NoteCurrentRow() {
  if (keeps_rows_) return;
  const int row = view_.currentIndex().row();
  grid_content::RowIdentity identity;
  if (row >= 0 && row < model_->rowCount()) identity = content_.IdentityOf(static_cast<std::uint32_t>(row));
  if (identity == current_) return;
  current_ = std::move(identity);
  Raise(current_row_changed_);
}

// Looks

std::int32_t QtGrid::FormatCount() const { return content_.Formats().Count(); }

void QtGrid::AddFormat(const platform::GridFormat& format) {
  content_.Formats().Add(format);
  view_.viewport()->update();
}

bool QtGrid::GroupByBoxVisible() const { return !widget_.Box().isHidden(); }
void QtGrid::SetGroupByBoxVisible(bool visible) { widget_.Box().setVisible(visible); }

void QtGrid::ExpandAllGroups() {
  RearrangeRows([this] { content_.Rows().SetAllExpanded(true); });
}

void QtGrid::CollapseAllGroups() {
  RearrangeRows([this] { content_.Rows().SetAllExpanded(false); });
}

void QtGrid::ExpandSelection() {
  std::vector<grid_engine::GroupId> groups;
  for (const int row : MarkedViewRows()) {
    const auto shown = content_.Rows().RowAt(static_cast<std::uint32_t>(row));
    if (shown.is_group) groups.push_back(shown.group);
  }
  RearrangeRows([&] { content_.Rows().ExpandAround(groups); });
}

std::vector<int> QtGrid::MarkedViewRows() const {
  std::vector<int> rows;
  for (const SelectionOrder::Range& range : selection_->Ranges()) {
    for (int row = range.first; row <= range.last; ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

}  // namespace ferrowind::qt
