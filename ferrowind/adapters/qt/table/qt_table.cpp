#include "ferrowind/adapters/qt/table/qt_table.h"

#include <QApplication>
#include <QClipboard>
#include <QItemSelection>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "ferrowind/adapters/qt/controls/caption_text.h"
#include "ferrowind/adapters/qt/table/cell_words.h"
#include "ferrowind/adapters/qt/table/table_header.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

namespace {

QString SortText(const QString& caption) { return MarkedCaption(Translated("Sort by %1").arg(caption)); }

std::string WordOfMark(platform::CellMark mark) { return FromQt(MarkWord(mark)); }

}  // namespace

QtTable::QtTable(TableView& view)
    : QtControl(view), view_(view), content_(Name(), WordOfMark), model_(content_) {
  view_.setModel(&model_);
  QObject::connect(&view_, &TableView::CurrentMoved, Context(), [this] {
    if (!is_changing_) TellCurrent();
  });
  QObject::connect(&view_, &TableView::Activated, Context(), [this] { Raise(activated_); });
  QObject::connect(&view_, &TableView::CheckAsked, Context(), [this](int row) {
    const platform::TableRow& shown = content_.RowAt(static_cast<std::size_t>(row));
    if (shown.checked) Check({shown.key}, !*shown.checked);
  });
  QObject::connect(&view_, &TableView::CheckSelectedAsked, Context(), [this] { CheckSelected(); });
  QObject::connect(&view_, &TableView::CopyAsked, Context(), [this] { Copy(); });
  QObject::connect(&view_, &TableView::SortMenuAsked, Context(),
                   [this](const QPoint& global) { ShowSortMenu(global); });
  QObject::connect(&view_.Header(), &QHeaderView::sectionClicked, Context(),
                   [this](int column) { SortBy(column); });
}

QtTable::~QtTable() { view_.setModel(nullptr); }

void QtTable::ApplyDesign(const platform::ControlDesign& design) {
  view_.SetSelectsCells(design.selects_cells);
  model_.SetReadsRows(!design.selects_cells);
  view_.SetSorts(design.sorts);
  view_.setSelectionMode(design.selects_many ? QAbstractItemView::ExtendedSelection
                                             : QAbstractItemView::SingleSelection);
}

// Content

void QtTable::SetColumns(const std::vector<platform::TableColumn>& columns) {
  Change([&] { content_.SetColumns(columns); });
  view_.ForgetWidths();
  view_.FitColumns();
}

void QtTable::SetRows(const std::vector<platform::TableRow>& rows) {
  const bool was_empty = content_.RowCount() == 0;
  Change([&] { content_.SetRows(rows); });
  view_.TellWhetherEmpty();
  if (was_empty) {
    view_.FitColumns();
  } else {
    view_.WidenColumns();
  }
}

void QtTable::SetEmptyText(const std::string& text) { view_.SetEmptyText(ToQt(text)); }

void QtTable::Change(const std::function<void()>& change) {
  const auto row = CurrentRow();
  const std::vector<std::string> selected = SelectedRows();
  const int current_row = std::max(view_.currentIndex().row(), 0);
  const int current_column = std::max(view_.currentIndex().column(), 0);
  const int first_row = view_.FirstRow();
  {
    const QScopedValueRollback<bool> changing(is_changing_, true);
    change();
    model_.ContentReplaced();
    const auto next = content_.Successor(row, static_cast<std::size_t>(current_row));
    if (next && model_.columnCount() > 0) {
      GoTo(static_cast<int>(*next), std::min(current_column, model_.columnCount() - 1));
      if (selected.size() > 1) Select(selected);
    }
    // The rows that the operator was looking at, unless the current one was among them and is no longer.
    view_.verticalScrollBar()->setValue(first_row);
    view_.scrollTo(view_.currentIndex());
  }
  TellCurrent();
}

void QtTable::Select(const std::vector<std::string>& rows) {
  std::vector<int> places;
  for (const std::string& row : rows) {
    if (const auto place = content_.FindRow(row)) places.push_back(static_cast<int>(*place));
  }
  std::sort(places.begin(), places.end());
  QItemSelection selection;
  for (std::size_t i = 0; i < places.size();) {
    std::size_t last = i;
    while (last + 1 < places.size() && places[last + 1] == places[last] + 1) ++last;
    selection.select(model_.index(places[i], 0), model_.index(places[last], model_.columnCount() - 1));
    i = last + 1;
  }
  if (!selection.isEmpty()) view_.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void QtTable::GoTo(int row, int column) { view_.GoTo(model_.index(row, column)); }

// Current row and cell

std::optional<std::string> QtTable::CurrentRow() const {
  const QModelIndex current = view_.currentIndex();
  if (!current.isValid() || static_cast<std::size_t>(current.row()) >= content_.RowCount())
    return std::nullopt;
  return content_.RowAt(static_cast<std::size_t>(current.row())).key;
}

std::optional<std::string> QtTable::CurrentColumn() const {
  const QModelIndex current = view_.currentIndex();
  if (!view_.SelectsCells() || !current.isValid()) return std::nullopt;
  return content_.Columns()[static_cast<std::size_t>(current.column())].key;
}

void QtTable::SetCurrentRow(const std::string& row) {
  const int place = static_cast<int>(content_.RowOf(row));
  GoTo(place, std::max(view_.currentIndex().column(), 0));
  view_.scrollTo(view_.currentIndex());
}

void QtTable::SetCurrentColumn(const std::string& column) {
  const int place = static_cast<int>(content_.ColumnOf(column));
  if (!view_.SelectsCells() || !view_.currentIndex().isValid()) return;
  view_.selectionModel()->setCurrentIndex(model_.index(view_.currentIndex().row(), place),
                                          QItemSelectionModel::NoUpdate);
}

void QtTable::TellCurrent() {
  const Current current{CurrentRow(), CurrentColumn()};
  if (current == told_) return;
  told_ = current;
  Raise(current_changed_);
}

std::vector<std::string> QtTable::SelectedRows() const {
  std::vector<int> places;
  for (const QItemSelectionRange& range : view_.selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) places.push_back(row);
  }
  std::sort(places.begin(), places.end());
  places.erase(std::unique(places.begin(), places.end()), places.end());
  std::vector<std::string> rows;
  rows.reserve(places.size());
  for (const int place : places) rows.push_back(content_.RowAt(static_cast<std::size_t>(place)).key);
  return rows;
}

// Boxes

bool QtTable::Checked(const std::string& row) const {
  return content_.RowAt(content_.RowOf(row)).checked.value_or(false);
}

void QtTable::SetChecked(const std::string& row, bool checked) {
  if (content_.SetChecked(content_.RowOf(row), checked)) model_.ChecksChanged();
}

void QtTable::CheckSelected() {
  const auto current = CurrentRow();
  if (!current) return;
  const auto box = content_.RowAt(content_.RowOf(*current)).checked;
  if (!box) return;
  std::vector<std::string> rows = SelectedRows();
  if (std::find(rows.begin(), rows.end(), *current) == rows.end()) rows = {*current};
  Check(rows, !*box);
}

void QtTable::Check(const std::vector<std::string>& rows, bool checked) {
  std::vector<std::string> changed;
  for (const std::string& row : rows) {
    if (content_.SetChecked(content_.RowOf(row), checked)) changed.push_back(row);
  }
  model_.ChecksChanged();
  for (const std::string& row : changed) Raise(check_changed_, row, checked);
}

// Order and copies

void QtTable::SortBy(int column) {
  if (!view_.Sorts()) return;
  Change([&] { content_.Sort(content_.SortingAfterClick(static_cast<std::size_t>(column))); });
}

void QtTable::ShowSortMenu(const QPoint& global) {
  auto* menu = new QMenu(&view_);
  menu->setObjectName(QStringLiteral("sortMenu"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (int column = 0; column < model_.columnCount(); ++column) {
    const platform::TableColumn& shown = content_.Columns()[static_cast<std::size_t>(column)];
    QAction* action = menu->addAction(SortText(ToQt(shown.caption)));
    action->setObjectName(QStringLiteral("sortBy.") + ToQt(shown.key));
    action->setCheckable(true);
    action->setChecked(content_.Sorted() && content_.Sorted()->column == static_cast<std::size_t>(column));
    QObject::connect(action, &QAction::triggered, Context(), [this, column] { SortBy(column); });
  }
  menu->popup(global);
  if (!menu->actions().isEmpty()) menu->setActiveAction(menu->actions().front());
}

void QtTable::Copy() const { QApplication::clipboard()->setText(ToQt(content_.TextOf(SelectedRows()))); }

// Events

platform::Subscription QtTable::OnCurrentChange(std::function<void()> handler) {
  return current_changed_.Subscribe(std::move(handler));
}

platform::Subscription QtTable::OnActivate(std::function<void()> handler) {
  return activated_.Subscribe(std::move(handler));
}

platform::Subscription QtTable::OnCheckChange(
    std::function<void(const std::string& row, bool checked)> handler) {
  return check_changed_.Subscribe(std::move(handler));
}

}  // namespace ferrowind::qt
