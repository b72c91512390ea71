#include "ferrowind/adapters/qt/grid/grid_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <limits>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/look/flat_scroll_bar.h"
#include "ferrowind/adapters/qt/look/text_tip.h"
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
      UpdateColors();
      break;
    case QEvent::FontChange:
      UpdateFont();
      break;
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
      UpdateColors();
      break;
    default:
      break;
  }
}

bool GridView::event(QEvent* event) {
  const bool handled = UniformTableView::event(event);
  // Told to each widget of a window, whereas the change of activation is told to the window alone.
  if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) UpdateColors();
  return handled;
}

bool GridView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return UniformTableView::viewportEvent(event);
  ShowCutText(*static_cast<QHelpEvent*>(event));
  return true;
}

void GridView::ShowCutText(const QHelpEvent& event) {
  const int row = RowAt(event.pos().y());
  const int column = columnAt(event.pos().x());
  QString cut;
  QRect area = row < 0 ? QRect() : RowArea(row);
  if (row >= 0) {
    const RowPainter rows(model_->Content(), colors_, texts_);
    const VisibleRow shown = model_->Content().Rows().RowAt(static_cast<std::uint32_t>(row));
    if (shown.is_group) {
      cut = rows.CutText(shown.group, area.width());
    } else if (column >= 0) {
      area = visualRect(model_->index(row, column));
      cut = rows.CutText(model_->Content().Rows().RecordAt(shown.position),
                         static_cast<std::int16_t>(column + 1), area.width());
    }
  }
  ShowTextTip(event, *viewport(), area, cut);
}

void GridView::UpdateColors() {
  colors_ = GridColors(palette());
  viewport()->update();
  header_->viewport()->update();
}

// The base class makes the first row current when there is none, although it may be out of sight, and
// commands would act on it. The focus comes back from each dialog; only who goes to the rows by key wants to
// be at one.
void GridView::focusInEvent(QFocusEvent* event) {
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) BeginAtTop();
  const QScopedValueRollback<bool> arriving(is_focus_arriving_, true);
  UniformTableView::focusInEvent(event);
}

QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  return is_focus_arriving_ ? QModelIndex() : UniformTableView::moveCursor(action, modifiers);
}

void GridView::BeginAtTop() {
  if (!currentIndex().isValid() && FirstVisibleRow() >= 0) SetCurrentRow(FirstVisibleRow());
}

void GridView::focusOutEvent(QFocusEvent* event) {
  UniformTableView::focusOutEvent(event);
  // The keyboard may leave for a command, and what that acts on must be seen. A single current row is left
  // alone: who scrolled away from it wants to read there.
  if (selectionMode() == ExtendedSelection && event->reason() != Qt::PopupFocusReason) ShowSelection();
}

void GridView::ShowSelection() {
  if (model_ == nullptr) return;
  const int first_row = FirstRow();
  const int last_row = first_row + RowsPerPage() - 1;
  int nearest_top = first_row;
  int least_distance = std::numeric_limits<int>::max();
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    if (range.top() <= last_row && range.bottom() >= first_row) return;
    const bool is_above = range.bottom() < first_row;
    const int distance = is_above ? first_row - range.bottom() : range.top() - last_row;
    if (distance >= least_distance) continue;
    least_distance = distance;
    nearest_top = is_above ? range.bottom() : range.top() - RowsPerPage() + 1;
  }
  verticalScrollBar()->setValue(nearest_top);
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
    setCurrentIndex(QModelIndex());
    selectionModel()->clear();
    return;
  }
  const int kept_column = current_column_;
  int column = std::max(current_column_ - 1, 0);
  if (current_column_ == 0 && header_->count() > 0) column = std::max(header_->FirstVisibleColumn(), 0);
  const QModelIndex index = model_->index(row, column);
  const bool is_current = index == currentIndex();
  GoTo(index);
  // Going to another row does that.
  if (is_current) scrollTo(index);
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
  if (const grid_content::StoredValueList* values = content.Columns()[index].Values()) {
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
  if (!current.isValid()) return;
  if (GroupInRow(current.row())) {
    rows.PaintCurrentGroupMark(painter, RowArea(current.row()), hasFocus());
  } else {
    rows.PaintCurrentMark(painter, RowArea(current.row()), columns,
                          static_cast<std::int16_t>(hasFocus() ? current.column() + 1 : 0));
  }
}

}  // namespace ferrowind::qt
