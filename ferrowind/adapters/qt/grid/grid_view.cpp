#include "ferrowind/adapters/qt/grid/grid_view.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/look/flat_scroll_bar.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

using grid_engine::GroupId;
using grid_engine::VisibleRow;

namespace {

constexpr int kRowPadding = 8;
constexpr int kLeastColumnWidth = 24;
constexpr int kWidestFit = 300;
constexpr int kCellMargins = 17;
/// Rows that a fitting column width takes into account.
constexpr int kRowsMeasured = 500;

bool IsMove(int key) { return (key >= Qt::Key_Home && key <= Qt::Key_PageDown) || key == Qt::Key_Escape; }

}  // namespace

GridView::GridView(QWidget* parent)
    : UniformTableView(parent), header_(new GridHeader(this)), colors_(palette()), texts_(font()) {
  setHorizontalHeader(header_);
  setVerticalScrollBar(new FlatScrollBar(Qt::Vertical));
  setHorizontalScrollBar(new FlatScrollBar(Qt::Horizontal));
  setFrameShape(QFrame::NoFrame);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Each paint covers all of its area.
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  UpdateFont();
}

void GridView::setModel(QAbstractItemModel* model) {
  model_ = qobject_cast<GridModel*>(model);
  UniformTableView::setModel(model);
}

void GridView::UpdateFont() {
  texts_.SetFont(font());
  SetRowHeight(texts_.Metrics().height() + kRowPadding);
}

void GridView::changeEvent(QEvent* event) {
  UniformTableView::changeEvent(event);
  switch (event->type()) {
    case QEvent::StyleChange:
      UpdateFont();
      colors_ = GridColors(palette());
      break;
    case QEvent::FontChange:
      UpdateFont();
      break;
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
    case QEvent::ActivationChange:
      colors_ = GridColors(palette());
      viewport()->update();
      break;
    default:
      break;
  }
}

void GridView::focusInEvent(QFocusEvent* event) {
  const bool had_row = currentIndex().isValid();
  UniformTableView::focusInEvent(event);
  // The base makes the first row current without selecting it, so that a command on the selection would find
  // none.
  if (!had_row && currentIndex().isValid()) SetCurrentRow(currentIndex().row());
}

// Rows and columns

int GridView::CurrentColumn() const { return current_column_; }

void GridView::SetCurrentColumn(int column) {
  current_column_ = column;
  if (model_ == nullptr || column < 1 || !currentIndex().isValid()) return;
  selectionModel()->setCurrentIndex(model_->index(currentIndex().row(), column - 1),
                                    QItemSelectionModel::NoUpdate);
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  UniformTableView::currentChanged(current, previous);
  // A row that becomes current by the program takes the column that was current before.
  if (current.isValid()) current_column_ = current.column() + 1;
  viewport()->update();
}

void GridView::SetCurrentRow(int row) {
  if (model_ == nullptr) return;
  if (row < 0) {
    selectionModel()->clear();
    return;
  }
  const int kept_column = current_column_;
  int column = std::max(current_column_ - 1, 0);
  if (current_column_ == 0 && header_->count() > 0) column = std::max(header_->FirstVisibleColumn(), 0);
  selectionModel()->setCurrentIndex(model_->index(row, column),
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  current_column_ = kept_column;
}

int GridView::FirstVisibleRow() const {
  if (model_ == nullptr || model_->rowCount() == 0) return -1;
  if (pending_first_row_) return std::min(*pending_first_row_, model_->rowCount() - 1);
  return FirstRow();
}

void GridView::SetFirstVisibleRow(int row) {
  pending_first_row_ = row;
  ApplyPendingFirstRow();
}

void GridView::ApplyPendingFirstRow() {
  if (!pending_first_row_ || !isVisible()) return;
  updateGeometries();
  verticalScrollBar()->setValue(*pending_first_row_);
  pending_first_row_.reset();
}

void GridView::resizeEvent(QResizeEvent* event) {
  UniformTableView::resizeEvent(event);
  ApplyPendingFirstRow();
}

std::optional<GroupId> GridView::GroupInRow(int row) const {
  if (model_ == nullptr || row < 0 || row >= model_->rowCount()) return std::nullopt;
  const VisibleRow shown = model_->Content().Rows().RowAt(static_cast<std::uint32_t>(row));
  if (!shown.is_group) return std::nullopt;
  return shown.group;
}

QRect GridView::RowArea(int row) const { return {0, TopOf(row), viewport()->width(), RowHeight()}; }

void GridView::SetExpanded(GroupId group, bool is_expanded) {
  if (model_ == nullptr) return;
  const auto& groups = model_->Content().Rows().Groups();
  const auto row = groups.RowOf(group);
  const int current = currentIndex().row();
  if (row && !is_expanded && current > static_cast<int>(*row) &&
      current <= static_cast<int>(*row + groups.RowsWithin(group)) && groups.IsExpanded(group)) {
    SetCurrentRow(static_cast<int>(*row));
  }
  model_->SetExpanded(group, is_expanded);
}

int GridView::sizeHintForColumn(int column) const { return FittingWidth(column); }

int GridView::FittingWidth(int column) const {
  if (model_ == nullptr) return kLeastColumnWidth;
  const GridContent& content = model_->Content();
  const auto index = static_cast<std::int16_t>(column + 1);
  int width = header_->FittingWidth(column);
  // What the operator does next may give any row another format and another text of the list.
  const unsigned char style = content.Formats().CanBeBold() ? TextCache::kBold : TextCache::kPlain;
  const auto make_room = [&](const QString& text) {
    if (texts_.FitsByLetters(text, width - kCellMargins, style)) return;
    width = std::max(width, texts_.WidthOf(text, style) + kCellMargins);
  };
  if (const QtGridValueList* values = content.Columns()[index].Values()) {
    for (const std::string& text : values->Texts()) make_room(ToQt(text));
  }
  const int rows = std::min(model_->rowCount(), kRowsMeasured);
  for (int row = 0; row < rows && width < kWidestFit; ++row) {
    if (const auto record = content.RecordInRow(static_cast<std::uint32_t>(row)))
      make_room(content.Cells().ShownText(index, *record));
  }
  return std::clamp(width, kLeastColumnWidth, kWidestFit);
}

// Painting

std::vector<ShownColumn> GridView::ColumnsWithin(const QRect& area) const {
  std::vector<ShownColumn> columns;
  for (int visual = 0; visual < header_->count(); ++visual) {
    const int logical = header_->logicalIndex(visual);
    if (header_->isSectionHidden(logical)) continue;
    const int left = columnViewportPosition(logical);
    const int width = columnWidth(logical);
    if (left > area.right() || left + width <= area.left()) continue;
    columns.push_back({static_cast<std::int16_t>(logical + 1), left, width});
  }
  return columns;
}

void GridView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QRect area = event->rect();
  const int below_rows = model_ == nullptr || model_->columnCount() == 0 ? 0 : std::max(TopOf(RowCount()), 0);
  if (below_rows <= area.bottom())
    painter.fillRect(area.adjusted(0, below_rows - area.top(), 0, 0), colors_.base);
  if (below_rows == 0) return;
  const RowPainter rows(model_->Content(), colors_, texts_);
  const std::vector<ShownColumn> columns = ColumnsWithin(area);
  const QModelIndex current = currentIndex();
  int row = std::max(RowAt(area.top()), 0);
  int records_top = TopOf(row);
  const auto finish_records = [&](int bottom) {
    if (bottom > records_top) rows.PaintColumnLines(painter, columns, records_top, bottom - records_top);
  };
  for (; row < model_->rowCount(); ++row) {
    const QRect row_area = RowArea(row);
    if (row_area.top() > area.bottom()) break;
    RowState state;
    state.is_selected = selectionModel()->isSelected(model_->index(row, 0));
    state.is_current = current.isValid() && current.row() == row;
    state.is_odd = row % 2 != 0;
    if (state.is_current && hasFocus()) state.focus_column = static_cast<std::int16_t>(current.column() + 1);
    const VisibleRow shown = model_->Content().Rows().RowAt(static_cast<std::uint32_t>(row));
    if (shown.is_group) {
      finish_records(row_area.top());
      rows.PaintGroup(painter, row_area, shown.group, state);
      records_top = row_area.top() + row_area.height();
    } else {
      rows.PaintRecord(painter, row_area, columns, model_->Content().Rows().RecordAt(shown.position), state);
    }
  }
  finish_records(TopOf(row));
}

// The operator

void GridView::mousePressEvent(QMouseEvent* event) {
  const int row = RowAt(event->pos().y());
  if (const auto group = GroupInRow(row); group && event->button() == Qt::LeftButton) {
    const QRect expander = RowPainter::ExpanderArea(RowArea(row), group->level, layoutDirection());
    if (expander.contains(event->pos())) {
      setFocus(Qt::MouseFocusReason);
      SetExpanded(*group, !model_->Content().Rows().Groups().IsExpanded(*group));
      event->accept();
      return;
    }
  }
  UniformTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  const int row = RowAt(event->pos().y());
  const auto group = GroupInRow(row);
  if (group && event->button() == Qt::LeftButton) {
    SetExpanded(*group, !model_->Content().Rows().Groups().IsExpanded(*group));
    return;
  }
  UniformTableView::mouseDoubleClickEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  UniformTableView::mouseReleaseEvent(event);
  // Last, since who listens may open a menu and close the window from it.
  if (RowAt(event->pos().y()) >= 0) emit MouseReleased(event->button());
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) AskForMenuOfCurrentRow();
}

void GridView::AskForMenuOfCurrentRow() {
  if (currentIndex().isValid()) emit MouseReleased(Qt::RightButton);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    emit CopyAsked();
    return;
  }
  if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
    emit HeaderMenuAsked(std::max(CurrentColumn() - 1, 0));
    return;
  }
  // For keyboards without a menu key.
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    AskForMenuOfCurrentRow();
    return;
  }
  // The key ends the search first; the window may stand for it the next time.
  const bool ends_search = event->key() == Qt::Key_Escape && type_ahead_.IsUnderWay();
  if (IsMove(event->key())) type_ahead_.Forget();
  if (ends_search) return;
  if (!type_ahead_.IsUnderWay() && HandleGroupKey(event)) return;
  UniformTableView::keyPressEvent(event);
}

bool GridView::HandleGroupKey(QKeyEvent* event) {
  const int row = currentIndex().row();
  const auto group = GroupInRow(row);
  const bool is_plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool is_mirrored = layoutDirection() == Qt::RightToLeft;
  int key = event->key();
  if (is_mirrored && key == Qt::Key_Left) {
    key = Qt::Key_Right;
  } else if (is_mirrored && key == Qt::Key_Right) {
    key = Qt::Key_Left;
  }
  if (!group) {
    if (!is_plain || key != Qt::Key_Left || row < 0) return false;
    const auto& groups = model_->Content().Rows().Groups();
    if (groups.LevelCount() == 0 ||
        header_->visualIndex(currentIndex().column()) > header_->FirstVisibleVisual()) {
      return false;
    }
    // At the first column there is nothing further left than the group.
    const VisibleRow shown = model_->Content().Rows().RowAt(static_cast<std::uint32_t>(row));
    const GroupId around = groups.GroupOfPosition(shown.position, groups.LevelCount() - 1);
    if (const auto group_row = groups.RowOf(around)) SetCurrentRow(static_cast<int>(*group_row));
    return true;
  }
  const auto& groups = model_->Content().Rows().Groups();
  const bool is_expanded = groups.IsExpanded(*group);
  switch (key) {
    case Qt::Key_Left:
      if (!is_plain) return false;
      if (is_expanded) {
        SetExpanded(*group, false);
      } else if (group->level > 0) {
        if (const auto parent = groups.RowOf(groups.ParentOf(*group)))
          SetCurrentRow(static_cast<int>(*parent));
      }
      return true;
    case Qt::Key_Right:
      if (!is_plain) return false;
      if (is_expanded) {
        SetCurrentRow(row + 1);
      } else {
        SetExpanded(*group, true);
      }
      return true;
    case Qt::Key_Minus:
      SetExpanded(*group, false);
      return true;
    case Qt::Key_Plus:
      SetExpanded(*group, true);
      return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!is_plain) return false;
      SetExpanded(*group, !is_expanded);
      return true;
    default:
      return false;
  }
}

void GridView::keyboardSearch(const QString& text) {
  if (model_ == nullptr || model_->rowCount() == 0) return;
  int column = CurrentColumn() - 1;
  if (column < 0) column = header_->FirstVisibleColumn();
  if (column < 0) return;
  const auto row = type_ahead_.Search(text, model_->Content(), static_cast<std::int16_t>(column + 1),
                                      currentIndex().isValid() ? currentIndex().row() : -1);
  if (row) SetCurrentRow(*row);
}

}  // namespace ferrowind::qt
