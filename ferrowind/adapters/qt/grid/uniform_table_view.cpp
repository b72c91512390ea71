#include "ferrowind/adapters/qt/grid/uniform_table_view.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "ferrowind/adapters/qt/grid/uniform_table_accessible.h"

namespace ferrowind::qt {

UniformTableView::UniformTableView(QWidget* parent) : QTableView(parent) {
  // Does nothing when it is installed already.
  QAccessible::installFactory(UniformTableAccessible::Make);
  verticalHeader()->hide();
  // The button between the headers is laid out, and hidden, by a step of the base class that is replaced
  // here.
  if (auto* corner = findChild<QAbstractButton*>()) corner->hide();
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void UniformTableView::setModel(QAbstractItemModel* model) {
  disconnect(rows_removed_);
  QTableView::setModel(model);
  verticalHeader()->setModel(&no_rows_);
  if (model != nullptr) {
    rows_removed_ =
        connect(model, &QAbstractItemModel::rowsRemoved, this, &UniformTableView::RowCountChanged);
  }
}

void UniformTableView::reset() {
  QTableView::reset();
  updateGeometries();
}

void UniformTableView::SetRowHeight(int height) {
  row_height_ = std::max(height, 1);
  RowCountChanged();
}

void UniformTableView::RowCountChanged() {
  updateGeometries();
  viewport()->update();
}

void UniformTableView::rowsInserted(const QModelIndex& parent, int first, int last) {
  QTableView::rowsInserted(parent, first, last);
  RowCountChanged();
}

// Places

int UniformTableView::RowCount() const { return model() == nullptr ? 0 : model()->rowCount(); }
int UniformTableView::FirstRow() const { return verticalScrollBar()->value(); }
int UniformTableView::RowsPerPage() const { return std::max(viewport()->height() / row_height_, 1); }
int UniformTableView::TopOf(int row) const { return (row - FirstRow()) * row_height_; }

int UniformTableView::UnboundRowAt(int y) const {
  const int rows = y >= 0 ? y / row_height_ : -((row_height_ - 1 - y) / row_height_);
  return FirstRow() + rows;
}

int UniformTableView::RowAt(int y) const {
  const int row = UnboundRowAt(y);
  return row >= 0 && row < RowCount() ? row : -1;
}

// Offsets are those of scrolling, by which the base keeps track of where a press was: they need not be exact
// far down.
int UniformTableView::verticalOffset() const {
  constexpr int kFarthest = 1 << 30;
  return FirstRow() < kFarthest / row_height_ ? FirstRow() * row_height_ : kFarthest;
}

QRect UniformTableView::visualRect(const QModelIndex& index) const {
  if (!index.isValid() || isColumnHidden(index.column())) return {};
  // Rows too far outside the viewport are told as nearer: their places in pixels would overflow.
  const int farthest = (1 << 29) / row_height_;
  const int row = std::clamp(index.row(), FirstRow() - farthest, FirstRow() + farthest);
  return {columnViewportPosition(index.column()), TopOf(row), columnWidth(index.column()), row_height_};
}

QModelIndex UniformTableView::indexAt(const QPoint& point) const {
  const int row = RowAt(point.y());
  const int column = columnAt(point.x());
  if (row < 0 || column < 0) return {};
  return model()->index(row, column);
}

bool UniformTableView::isIndexHidden(const QModelIndex& index) const {
  return isColumnHidden(index.column());
}

QRegion UniformTableView::visualRegionForSelection(const QItemSelection& selection) const {
  return selection.isEmpty() ? QRegion() : QRegion(viewport()->rect());
}

// Scrolling

void UniformTableView::updateGeometries() {
  // Margins and scroll bars change the viewport, which leads here again.
  if (updates_geometries_) return;
  const QScopedValueRollback<bool> updating(updates_geometries_, true);
  QHeaderView* header = horizontalHeader();
  const int header_height = header->isHidden() ? 0 : header->sizeHint().height();
  setViewportMargins(0, header_height, 0, 0);
  const QRect area = viewport()->geometry();
  header->setGeometry(area.left(), area.top() - header_height, area.width(), header_height);

  // Of two scroll bars each may take the room whose lack is the other's only reason: they would come and go
  // in turns for ever.
  const QSize most = maximumViewportSize();
  const bool fits = header->length() <= most.width() && RowCount() <= most.height() / row_height_;
  const QSize room = fits ? most : viewport()->size();
  const int rows_per_page = std::max(room.height() / row_height_, 1);
  horizontalScrollBar()->setPageStep(room.width());
  horizontalScrollBar()->setSingleStep(std::max(room.width() / 20, 8));
  horizontalScrollBar()->setRange(0, std::max(header->length() - room.width(), 0));
  verticalScrollBar()->setPageStep(rows_per_page);
  verticalScrollBar()->setSingleStep(1);
  verticalScrollBar()->setRange(0, std::max(RowCount() - rows_per_page, 0));
  QAbstractItemView::updateGeometries();
}

void UniformTableView::scrollContentsBy(int dx, int /*dy*/) {
  if (dx != 0) horizontalHeader()->setOffset(horizontalScrollBar()->value());
  viewport()->update();
}

void UniformTableView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  const int last_full = FirstRow() + RowsPerPage() - 1;
  if (hint == PositionAtTop || (hint == EnsureVisible && index.row() < FirstRow())) {
    verticalScrollBar()->setValue(index.row());
  } else if (hint == PositionAtBottom || (hint == EnsureVisible && index.row() > last_full)) {
    verticalScrollBar()->setValue(index.row() - RowsPerPage() + 1);
  } else if (hint == PositionAtCenter) {
    verticalScrollBar()->setValue(index.row() - RowsPerPage() / 2);
  }
  if (isColumnHidden(index.column())) return;
  const int left = columnViewportPosition(index.column());
  const int width = columnWidth(index.column());
  const bool is_wider = width > viewport()->width();
  const int direction = isRightToLeft() ? -1 : 1;
  if (left < 0 || is_wider) {
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + direction * left);
  } else if (left + width > viewport()->width()) {
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    direction * (left + width - viewport()->width()));
  }
}

// Keys and selection

int UniformTableView::FirstColumnFrom(int visual, int step) const {
  const QHeaderView* header = horizontalHeader();
  for (; visual >= 0 && visual < header->count(); visual += step) {
    const int column = header->logicalIndex(visual);
    if (!header->isSectionHidden(column)) return column;
  }
  return -1;
}

int UniformTableView::NextColumn(int column, int step) const {
  const int next = FirstColumnFrom(horizontalHeader()->visualIndex(column) + step, step);
  return next < 0 ? column : next;
}

QModelIndex UniformTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const int rows = RowCount();
  const QHeaderView* header = horizontalHeader();
  if (rows == 0 || header->count() == header->hiddenSectionCount()) return {};
  const int first_column = FirstColumnFrom(0, 1);
  const int last_column = FirstColumnFrom(header->count() - 1, -1);
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return model()->index(0, first_column);

  const bool is_to_end_of_rows = ChoosesRows() || modifiers.testFlag(Qt::ControlModifier);
  const int step = isRightToLeft() ? -1 : 1;
  int row = current.row();
  int column = current.column();
  switch (action) {
    case MoveUp:
      --row;
      break;
    case MoveDown:
      ++row;
      break;
    case MovePageUp:
      row -= RowsPerPage();
      break;
    case MovePageDown:
      row += RowsPerPage();
      break;
    case MoveLeft:
      column = NextColumn(column, -step);
      break;
    case MoveRight:
      column = NextColumn(column, step);
      break;
    case MovePrevious:
      column = NextColumn(column, -1);
      break;
    case MoveNext:
      column = NextColumn(column, 1);
      break;
    case MoveHome:
      if (is_to_end_of_rows) row = 0;
      if (!ChoosesRows()) column = first_column;
      break;
    case MoveEnd:
      if (is_to_end_of_rows) row = rows - 1;
      if (!ChoosesRows()) column = last_column;
      break;
  }
  return model()->index(std::clamp(row, 0, rows - 1), column);
}

bool UniformTableView::MovesAlone(const QKeyEvent& event) const {
  return selectionMode() == ExtendedSelection && IsMove(event.key()) && event.key() != Qt::Key_Home &&
         event.key() != Qt::Key_End && event.modifiers().testFlag(Qt::ControlModifier) &&
         !event.modifiers().testFlag(Qt::ShiftModifier);
}

void UniformTableView::keyPressEvent(QKeyEvent* event) {
  // Ends the range that Shift began, which the next one would take the place of.
  if (MovesAlone(*event) && model() != nullptr)
    selectionModel()->select(QModelIndex(), QItemSelectionModel::Select);
  const bool is_selecting_move = IsMove(event->key()) && !MovesAlone(*event);
  const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
  const QPointer<UniformTableView> self(this);
  QTableView::keyPressEvent(event);
  if (!self || !is_selecting_move || !currentIndex().isValid()) return;
  // At the first or the last row there is no move, yet the row that it would go to is this one.
  if (selectionModel()->isSelected(currentIndex())) return;
  const auto command = extends ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect;
  selectionModel()->select(currentIndex(), command | QItemSelectionModel::Rows);
}

void UniformTableView::GoTo(const QModelIndex& index) {
  const QScopedValueRollback goes(goes_to_row_, true);
  setCurrentIndex(index);
}

void UniformTableView::SetCurrentRow(int row) {
  if (model() == nullptr) return;
  GoTo(row < 0 ? QModelIndex() : model()->index(row, std::max(currentIndex().column(), 0)));
}

void UniformTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  const QScopedValueRollback follows(follows_current_, true);
  QTableView::currentChanged(current, previous);
}

QItemSelectionModel::SelectionFlags UniformTableView::selectionCommand(const QModelIndex& index,
                                                                       const QEvent* event) const {
  using Selection = QItemSelectionModel;
  constexpr auto kOnly = Selection::ClearAndSelect | Selection::Rows;
  if (!index.isValid()) return Selection::NoUpdate;
  // A key or a click that makes a row current has its own way to say where a range begins.
  if (event == nullptr)
    return follows_current_ && !goes_to_row_ ? Selection::SelectCurrent | Selection::Rows : kOnly;
  if (selectionMode() == SingleSelection || !event->isInputEvent())
    return QTableView::selectionCommand(index, event);
  const Qt::KeyboardModifiers modifiers = static_cast<const QInputEvent*>(event)->modifiers();
  const bool extends = modifiers.testFlag(Qt::ShiftModifier);
  if (event->type() == QEvent::KeyPress) {
    if (extends) return Selection::SelectCurrent | Selection::Rows;
    return MovesAlone(*static_cast<const QKeyEvent*>(event)) ? Selection::SelectionFlags(Selection::NoUpdate)
                                                             : kOnly;
  }
  // The base would stretch a range to a row that is clicked with Ctrl.
  const bool is_press = event->type() == QEvent::MouseButtonPress;
  if (selectionMode() == ContiguousSelection && is_press && !extends &&
      modifiers.testFlag(Qt::ControlModifier)) {
    return kOnly;
  }
  return QTableView::selectionCommand(index, event);
}

void UniformTableView::setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command) {
  const int rows = RowCount();
  const int columns = model() == nullptr ? 0 : model()->columnCount();
  if (rows == 0 || columns == 0) return;
  const int first = UnboundRowAt(std::min(area.top(), area.bottom()));
  const int last = UnboundRowAt(std::max(area.top(), area.bottom()));
  QItemSelection selection;
  if (first < rows && last >= 0) {
    selection.select(model()->index(std::max(first, 0), 0),
                     model()->index(std::min(last, rows - 1), columns - 1));
  }
  selectionModel()->select(selection, command);
}

}  // namespace ferrowind::qt
