#include "ferrowind/adapters/qt/table/table_view.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <optional>
#include <vector>

#include "ferrowind/adapters/qt/look/flat_scroll_bar.h"
#include "ferrowind/adapters/qt/look/text_tip.h"
#include "ferrowind/adapters/qt/table/cell_words.h"
#include "ferrowind/adapters/qt/table/table_header.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

namespace {

constexpr int kWidestFit = 320;
/// Rows that a fitting column width takes into account.
constexpr int kRowsMeasured = 500;

std::size_t Place(int row) { return static_cast<std::size_t>(row); }

void PaintFrame(QPainter& painter, const QRect& area, int width, const QColor& color) {
  painter.fillRect(QRect(area.left(), area.top(), area.width(), width), color);
  painter.fillRect(QRect(area.left(), area.bottom() + 1 - width, area.width(), width), color);
  painter.fillRect(QRect(area.left(), area.top(), width, area.height()), color);
  painter.fillRect(QRect(area.right() + 1 - width, area.top(), width, area.height()), color);
}

}  // namespace

/// Puts the news of a move off until the base class is done with it: who listens may replace the rows or
/// close the window.
class TableView::Work {
 public:
  explicit Work(TableView& view) : view_(&view) { ++view.works_under_way_; }
  ~Work() {
    if (!view_ || --view_->works_under_way_ > 0 || !view_->has_moved_) return;
    view_->has_moved_ = false;
    emit view_->CurrentMoved();
  }
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;

 private:
  QPointer<TableView> view_;
};

TableView::TableView(QWidget* parent)
    : UniformTableView(parent), header_(new TableHeader(*this)), colors_(palette()), cells_(*this) {
  setHorizontalHeader(header_);
  setVerticalScrollBar(new FlatScrollBar(Qt::Vertical));
  setHorizontalScrollBar(new FlatScrollBar(Qt::Horizontal));
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Each paint covers all of its area.
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  connect(header_, &TableHeader::ResizedByOperator, this, &TableView::Settle);
  connect(header_, &QHeaderView::sectionHandleDoubleClicked, this, &TableView::Settle);
  header_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header_, &QWidget::customContextMenuRequested, this, &TableView::AskForSortMenu);
  UpdateFont();
}

void TableView::AskForSortMenu(const QPoint& in_header) {
  if (sorts_) emit SortMenuAsked(header_->viewport()->mapToGlobal(in_header));
}

void TableView::setModel(QAbstractItemModel* model) {
  model_ = qobject_cast<TableModel*>(model);
  UniformTableView::setModel(model);
}

void TableView::SetSelectsCells(bool selects) {
  selects_cells_ = selects;
  viewport()->update();
}

void TableView::SetSorts(bool sorts) {
  sorts_ = sorts;
  header_->setSectionsClickable(sorts);
}

void TableView::SetEmptyText(const QString& text) {
  empty_text_ = text;
  TellWhetherEmpty();
  viewport()->update();
}

void TableView::TellWhetherEmpty() { setAccessibleDescription(RowCount() == 0 ? empty_text_ : QString()); }

// Looks

void TableView::UpdateFont() {
  cells_.UpdateFont();
  SetRowHeight(cells_.RowHeight());
  FitColumns();
}

void TableView::UpdateColors() {
  colors_ = GridColors(palette());
  viewport()->update();
  header_->viewport()->update();
}

void TableView::changeEvent(QEvent* event) {
  UniformTableView::changeEvent(event);
  switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::FontChange:
      UpdateFont();
      UpdateColors();
      break;
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
      UpdateColors();
      break;
    default:
      break;
  }
}

bool TableView::event(QEvent* event) {
  const bool handled = UniformTableView::event(event);
  // Told to each widget of a window, whereas the change of activation is told to the window alone.
  if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) UpdateColors();
  return handled;
}

void TableView::focusInEvent(QFocusEvent* event) {
  UniformTableView::focusInEvent(event);
  viewport()->update();
}

void TableView::focusOutEvent(QFocusEvent* event) {
  UniformTableView::focusOutEvent(event);
  viewport()->update();
}

bool TableView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return UniformTableView::viewportEvent(event);
  ShowTip(*static_cast<QHelpEvent*>(event));
  return true;
}

void TableView::ShowTip(const QHelpEvent& event) {
  const QModelIndex index = indexAt(event.pos());
  if (!index.isValid()) return ShowTextTip(event, *viewport(), QRect(), QString());
  const platform::TableCell& cell = model_->Content().CellAt(Place(index.row()), Place(index.column()));
  const QRect area = visualRect(index);
  const bool is_cut = cells_.FittingWidth(cell, HasBox(index)) > area.width();
  const QString said = SpokenText(cell);
  const QString description = ToQt(cell.description);
  QString tip = is_cut || cell.text.empty() ? said : QString();
  if (!description.isEmpty() && description != tip)
    tip += tip.isEmpty() ? description : QStringLiteral(" – ") + description;
  ShowTextTip(event, *viewport(), area, tip);
}

// Widths

void TableView::Settle(int column) {
  // The others follow while the operator still holds the edge of one.
  if (shares_out_) return;
  settled_columns_.insert(column);
  ShareOutRoom();
}

int TableView::FittingWidth(int column) const {
  int width = header_->FittingWidth(column);
  const int rows = std::min(RowCount(), kRowsMeasured);
  for (int row = 0; row < rows && width < kWidestFit; ++row) {
    const platform::TableCell& cell = model_->Content().CellAt(Place(row), Place(column));
    width = std::max(width, cells_.FittingWidth(cell, HasBox(model_->index(row, column))));
  }
  return std::min(width, kWidestFit);
}

int TableView::sizeHintForColumn(int column) const { return model_ == nullptr ? 0 : FittingWidth(column); }

void TableView::FitColumns() {
  if (model_ == nullptr) return;
  wishes_.assign(model_->Content().Columns().size(), {});
  MeasureColumns();
}

void TableView::WidenColumns() {
  if (model_ != nullptr) MeasureColumns();
}

void TableView::MeasureColumns() {
  const auto& columns = model_->Content().Columns();
  wishes_.resize(columns.size());
  for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
    table_engine::ColumnWish& wish = wishes_[Place(column)];
    wish.stretches = columns[Place(column)].stretches;
    const int fitting = FittingWidth(column);
    wish.fitting = wish.stretches ? fitting : std::max(wish.fitting, fitting);
    wish.caption = header_->FittingWidth(column);
  }
  ShareOutRoom();
}

void TableView::ShareOutRoom() {
  // Between new columns and their measure.
  if (model_ == nullptr || static_cast<int>(wishes_.size()) != model_->columnCount()) return;
  for (int column = 0; column < static_cast<int>(wishes_.size()); ++column) {
    const bool is_settled = settled_columns_.contains(column);
    wishes_[Place(column)].settled = is_settled ? std::optional(columnWidth(column)) : std::nullopt;
  }
  const std::vector<int> widths = table_engine::WidthsWithin(viewport()->width(), wishes_);
  const QScopedValueRollback<bool> sharing(shares_out_, true);
  for (int column = 0; column < static_cast<int>(widths.size()); ++column)
    header_->resizeSection(column, widths[Place(column)]);
}

void TableView::resizeEvent(QResizeEvent* event) {
  UniformTableView::resizeEvent(event);
  ShareOutRoom();
  // More rows may have come on show than were: the current one stays among them.
  if (event->size().height() < event->oldSize().height()) scrollTo(currentIndex());
}

// Input

bool TableView::HasBox(const QModelIndex& index) const {
  return index.column() == 0 && model_->Content().RowAt(Place(index.row())).checked.has_value();
}

bool TableView::IsOnBox(const QPoint& point) const {
  const QModelIndex index = indexAt(point);
  if (!index.isValid() || !HasBox(index)) return false;
  // As much around it as makes it easy to hit.
  constexpr int kAround = 4;
  return cells_.BoxIn(visualRect(index)).adjusted(-kAround, -kAround, kAround, kAround).contains(point);
}

void TableView::mousePressEvent(QMouseEvent* event) {
  const bool is_for_box =
      event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier && IsOnBox(event->pos());
  if (!is_for_box) {
    const Work work(*this);
    return UniformTableView::mousePressEvent(event);
  }
  const QPersistentModelIndex row = indexAt(event->pos());
  GoTo(row);
  // Who was told of the move may have replaced the rows.
  if (row.isValid()) emit CheckAsked(row.row());
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
  // On a box a double click is two clicks.
  if (IsOnBox(event->pos())) return mousePressEvent(event);
  {
    const Work work(*this);
    UniformTableView::mouseDoubleClickEvent(event);
  }
  if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) emit Activated();
}

bool TableView::IsTyping() const {
  return since_typed_.isValid() && !since_typed_.hasExpired(QApplication::keyboardInputInterval());
}

void TableView::keyboardSearch(const QString& text) {
  since_typed_.restart();
  const QModelIndex current = currentIndex();
  if (!selects_cells_ || !current.isValid() || current.column() == 0)
    return UniformTableView::keyboardSearch(text);
  // A row of cells is known by its first one, and the column that the operator has chosen stays.
  const Work work(*this);
  setCurrentIndex(current.siblingAtColumn(0));
  UniformTableView::keyboardSearch(text);
  setCurrentIndex(currentIndex().siblingAtColumn(current.column()));
}

void TableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    emit CopyAsked();
    return;
  }
  if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
    const int left = currentIndex().isValid() ? columnViewportPosition(currentIndex().column()) : 0;
    return AskForSortMenu(QPoint(std::max(left, 0), header_->height()));
  }
  const bool is_plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (is_enter && is_plain && currentIndex().isValid()) {
    emit Activated();
    return;
  }
  if (is_enter) {
    event->ignore();
    return;
  }
  if (event->key() == Qt::Key_Space && is_plain && currentIndex().isValid()) {
    // Names have blanks: one that follows typed letters at once is part of the name.
    if (IsTyping()) {
      const Work work(*this);
      keyboardSearch(event->text());
    } else {
      emit CheckSelectedAsked();
    }
    return;
  }
  if (IsMove(event->key())) since_typed_.invalidate();
  const Work work(*this);
  UniformTableView::keyPressEvent(event);
}

void TableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  const Work work(*this);
  UniformTableView::currentChanged(current, previous);
  has_moved_ = true;
  viewport()->update();
}

// Painting

QColor TableView::GroundOf(int row, int column) const {
  const QColor plain = row % 2 != 0 ? colors_.alternate : colors_.base;
  const bool is_current = currentIndex().isValid() && currentIndex().row() == row;
  const bool is_selected = selectionModel()->isSelected(model_->index(row, 0));
  if (selects_cells_ && selectionMode() == SingleSelection)
    return is_current && column == currentIndex().column() ? colors_.current : plain;
  if (!is_selected) return plain;
  return is_current && (!selects_cells_ || column == currentIndex().column()) ? colors_.current
                                                                              : colors_.selected;
}

void TableView::PaintRow(QPainter& painter, int row) {
  const QRect area(0, TopOf(row), viewport()->width(), RowHeight());
  painter.fillRect(area, GroundOf(row, -1));
  const platform::TableRow& shown = model_->Content().RowAt(Place(row));
  for (int column = 0; column < model_->columnCount(); ++column) {
    const QRect cell = visualRect(model_->index(row, column));
    if (cell.right() < 0 || cell.left() > area.right()) continue;
    const QColor ground = GroundOf(row, column);
    painter.fillRect(cell, ground);
    cells_.Paint(painter, cell, model_->Content().CellAt(Place(row), Place(column)),
                 model_->Content().Columns()[Place(column)].alignment,
                 column == 0 ? shown.checked : std::nullopt, ground, colors_);
    painter.fillRect(QRect(isRightToLeft() ? cell.left() : cell.right(), cell.top(), 1, cell.height()),
                     colors_.line);
  }
  painter.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), colors_.line);
}

void TableView::PaintCurrentMark(QPainter& painter) const {
  const QModelIndex current = currentIndex();
  const QRect row(0, TopOf(current.row()), viewport()->width(), RowHeight());
  PaintFrame(painter, selects_cells_ ? visualRect(current) : row, hasFocus() ? 2 : 1, colors_.current_frame);
}

void TableView::PaintEmpty(QPainter& painter) const {
  constexpr int kMargin = 12;
  painter.setPen(colors_.muted);
  painter.setLayoutDirection(Qt::LayoutDirectionAuto);
  painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, empty_text_);
  if (hasFocus()) PaintFrame(painter, viewport()->rect(), 2, colors_.current_frame);
}

void TableView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QRect area = event->rect();
  const bool is_empty = model_ == nullptr || model_->rowCount() == 0 || model_->columnCount() == 0;
  const int below_rows = is_empty ? 0 : std::max(TopOf(RowCount()), 0);
  if (below_rows <= area.bottom())
    painter.fillRect(area.adjusted(0, below_rows - area.top(), 0, 0), colors_.base);
  if (is_empty) return PaintEmpty(painter);
  for (int row = std::max(RowAt(area.top()), 0); row < RowCount() && TopOf(row) <= area.bottom(); ++row)
    PaintRow(painter, row);
  if (currentIndex().isValid()) PaintCurrentMark(painter);
}

}  // namespace ferrowind::qt
