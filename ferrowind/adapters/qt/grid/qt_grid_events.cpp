// What the operator does, and who hears of it.
#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include "ferrowind/adapters/grid_content/grid_layout.h"
#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_model.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/grid/group_by_box.h"
#include "ferrowind/adapters/qt/grid/header_menu.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"
#include "ferrowind/adapters/qt/grid/row_copy.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

namespace {

std::int16_t IndexOf(int column) { return static_cast<std::int16_t>(column + 1); }

std::int32_t NumberOf(Qt::MouseButton button) {
  if (button == Qt::RightButton) return platform::kRightButton;
  return button == Qt::MiddleButton ? 4 : platform::kLeftButton;
}

}  // namespace

platform::Subscription QtGrid::OnUnboundValue(UnboundValueHandler handler) {
  return content_.Cells().OnUnboundValue(std::move(handler));
}
platform::Subscription QtGrid::OnUnboundOrder(UnboundValueHandler handler) {
  return content_.Cells().OnUnboundOrder(std::move(handler));
}
platform::Subscription QtGrid::OnCellText(CellTextHandler handler) {
  return content_.Cells().OnCellText(std::move(handler));
}
platform::Subscription QtGrid::OnHeaderClick(std::function<void(platform::GridColumn& column)> handler) {
  return header_clicked_.Subscribe(std::move(handler));
}
platform::Subscription QtGrid::OnBeforeGroupChange(std::function<void()> handler) {
  return before_group_change_.Subscribe(std::move(handler));
}
platform::Subscription QtGrid::OnAfterGroupChange(std::function<void()> handler) {
  return after_group_change_.Subscribe(std::move(handler));
}
platform::Subscription QtGrid::OnGroupByBoxChange(std::function<void(bool visible)> handler) {
  return group_by_box_changed_.Subscribe(std::move(handler));
}
platform::Subscription QtGrid::OnMouseUp(std::function<void(std::int32_t button)> handler) {
  return mouse_up_.Subscribe(std::move(handler));
}
platform::Subscription QtGrid::OnCurrentRowChange(std::function<void()> handler) {
  return current_row_changed_.Subscribe(std::move(handler));
}

void QtGrid::ConnectView() {
  QObject* context = context_.get();
  QObject::connect(view_.selectionModel(), &QItemSelectionModel::currentRowChanged, context,
                   [this] { NoteCurrentRow(); });
  QObject::connect(&view_, &GridView::MouseReleased, context,
                   [this](Qt::MouseButton button) { Raise(mouse_up_, NumberOf(button)); });
  QObject::connect(&view_, &GridView::CopyAsked, context, [this] { CopyRows(true); });
  QObject::connect(&view_, &GridView::HeaderMenuAsked, context, [this](int column) {
    const int x = header_.sectionViewportPosition(column);
    ShowHeaderMenu(column, header_.viewport()->mapToGlobal(QPoint(x, header_.height())));
  });
  QObject::connect(&header_, &GridHeader::Clicked, context, [this](int column, bool extends) {
    if (extends) {
      operations_.AddToSort(IndexOf(column));
    } else {
      Raise(header_clicked_, content_.Columns().At(column + 1));
    }
  });
  QObject::connect(&header_, &GridHeader::MenuAsked, context,
                   [this](int column, const QPoint& global) { ShowHeaderMenu(column, global); });
  QObject::connect(&header_, &GridHeader::ChipDropped, context,
                   [this](int position) { operations_.Ungroup(position); });
  QObject::connect(&header_, &GridHeader::ResizedByOperator, context,
                   [this](int column) { settled_widths_.insert(column + 1); });
}

void QtGrid::ConnectGroupBox() {
  QObject* context = context_.get();
  GroupByBox& box = widget_.Box();
  QObject::connect(&box, &GroupByBox::GroupAsked, context,
                   [this](int column, int position) { operations_.GroupBy(IndexOf(column), position); });
  QObject::connect(&box, &GroupByBox::MoveAsked, context, [this, &box](int from, int to) {
    operations_.MoveGroup(from, to);
    box.FocusChip(to);
  });
  QObject::connect(&box, &GroupByBox::RemoveAsked, context,
                   [this](int position) { operations_.Ungroup(position); });
  QObject::connect(&box, &GroupByBox::DirectionToggled, context,
                   [this](int position) { operations_.TurnGroupOrder(position); });
  QObject::connect(&box, &GroupByBox::MenuAsked, context, [this](int position, const QPoint& global) {
    ShowHeaderMenu(content_.GroupKeys().Item(position)->ColIndex - 1, global);
  });
  QObject::connect(box.Drag(), &ColumnDrag::ChipDroppedOutside, context,
                   [this](int position) { operations_.Ungroup(position); });
}

void QtGrid::RefreshAfterGroupChange() {
  const std::weak_ptr<int> alive(alive_);
  Raise(after_group_change_);
  // Who listens may have closed the grid, or refreshed it already.
  if (!alive.expired() && is_stale_) Refresh(false);
}

void QtGrid::ShowHeaderMenu(int column, const QPoint& global) {
  HeaderMenuActions actions;
  actions.expand_all = [this] { ExpandAllGroups(); };
  actions.collapse_all = [this] { CollapseAllGroups(); };
  actions.show_group_panel = [this](bool visible) {
    SetGroupByBoxVisible(visible);
    Raise(group_by_box_changed_, visible);
  };
  actions.is_group_panel_visible = GroupByBoxVisible();
  MakeHeaderMenu(&view_, context_.get(), content_, operations_, column + 1, actions)->popup(global);
}

// Layout and copies

std::string QtGrid::SaveLayout() const {
  if (ColumnCount() == 0) return {};
  grid_content::GridLayout layout;
  for (int visual = 0; visual < header_.count(); ++visual) {
    const int column = header_.logicalIndex(visual);
    const grid_content::StoredColumn& shown = content_.Columns()[column + 1];
    layout.columns.push_back({shown.Key(), header_.KeptWidth(column), shown.Visible()});
  }
  layout.sort_keys = grid_content::KeysOf(content_.Columns(), content_.SortKeys());
  layout.group_keys = grid_content::KeysOf(content_.Columns(), content_.GroupKeys());
  return grid_content::EncodeLayout(layout);
}

bool QtGrid::RestoreLayout(const std::string& text) {
  const auto layout = grid_content::DecodeLayout(text);
  if (!layout) return false;
  const grid_content::StoredColumns& columns = content_.Columns();
  int place = 0;
  for (const grid_content::GridLayout::Column& saved : layout->columns) {
    grid_content::StoredColumn* column = columns.Find(saved.key);
    if (column == nullptr) continue;
    const int logical = column->Index() - 1;
    header_.moveSection(header_.visualIndex(logical), place++);
    column->SetVisible(saved.is_visible);
    header_.SetKeptWidth(logical, saved.width);
    settled_widths_.insert(column->Index());
  }
  if (place == 0) return false;
  grid_content::RestoreKeys(columns, layout->sort_keys, content_.SortKeys());
  grid_content::RestoreKeys(columns, layout->group_keys, content_.GroupKeys());
  Refresh(false);
  return true;
}

void QtGrid::CopyRows(bool with_headers) const {
  std::vector<std::int16_t> columns;
  for (int visual = 0; visual < header_.count(); ++visual) {
    const int column = header_.logicalIndex(visual);
    if (!header_.isSectionHidden(column)) columns.push_back(IndexOf(column));
  }
  std::vector<int> rows = MarkedViewRows();
  if (rows.empty()) {
    for (int row = 0; row < model_->rowCount(); ++row) rows.push_back(row);
  }
  QApplication::clipboard()->setMimeData(CopyOfRows(content_, columns, rows, with_headers).release());
}

}  // namespace ferrowind::qt
