#include "ferrowind/adapters/qt/grid/selection_order.h"

#include <QAbstractItemModel>
#include <algorithm>
#include <utility>

namespace ferrowind::qt {

SelectionOrder::SelectionOrder(QItemSelectionModel& selection, QObject* parent)
    : QObject(parent), selection_(selection) {
  const QAbstractItemModel* model = selection.model();
  connect(&selection, &QItemSelectionModel::selectionChanged, this, &SelectionOrder::Change);
  connect(&selection, &QItemSelectionModel::currentChanged, this, &SelectionOrder::SelectCurrentOfNone);
  connect(model, &QAbstractItemModel::modelReset, this, [this] { ranges_.clear(); });
  connect(model, &QAbstractItemModel::rowsInserted, this,
          [this](const QModelIndex&, int first, int last) { ShiftFrom(first, last - first + 1); });
  connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
          [this](const QModelIndex&, int first, int last) {
            Remove({first, last});
          });
  connect(model, &QAbstractItemModel::rowsRemoved, this,
          [this](const QModelIndex&, int first, int last) { ShiftFrom(last + 1, first - last - 1); });
}

void SelectionOrder::Change(const QItemSelection& selected, const QItemSelection& deselected) {
  for (const QItemSelectionRange& range : deselected) Remove({range.top(), range.bottom()});
  for (const QItemSelectionRange& range : selected) {
    Remove({range.top(), range.bottom()});
    ranges_.push_back({range.top(), range.bottom()});
  }
  SelectCurrentOfNone();
}

void SelectionOrder::SelectCurrentOfNone() {
  const QModelIndex current = selection_.currentIndex();
  if (ranges_.empty() && current.isValid())
    selection_.select(current, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void SelectionOrder::Remove(Range removed) {
  std::vector<Range> rest;
  rest.reserve(ranges_.size() + 1);
  for (const Range& range : ranges_) {
    if (range.last < removed.first || range.first > removed.last) {
      rest.push_back(range);
      continue;
    }
    if (range.first < removed.first) rest.push_back({range.first, removed.first - 1});
    if (range.last > removed.last) rest.push_back({removed.last + 1, range.last});
  }
  ranges_ = std::move(rest);
}

void SelectionOrder::ShiftFrom(int row, int count) {
  std::vector<Range> shifted;
  shifted.reserve(ranges_.size() + 1);
  for (const Range& range : ranges_) {
    if (range.last < row) {
      shifted.push_back(range);
    } else if (range.first >= row) {
      shifted.push_back({range.first + count, range.last + count});
    } else {
      shifted.push_back({range.first, row - 1});
      shifted.push_back({row + count, range.last + count});
    }
  }
  ranges_ = std::move(shifted);
}

void SelectionOrder::Select(const std::vector<int>& rows_in_order) {
  const QAbstractItemModel* model = selection_.model();
  std::vector<int> sorted = rows_in_order;
  std::sort(sorted.begin(), sorted.end());
  QItemSelection selection;
  const int last_column = std::max(model->columnCount() - 1, 0);
  for (std::size_t i = 0; i < sorted.size();) {
    std::size_t end = i + 1;
    while (end < sorted.size() && sorted[end] == sorted[end - 1] + 1) ++end;
    selection.append({model->index(sorted[i], 0), model->index(sorted[end - 1], last_column)});
    i = end;
  }
  selection_.select(selection, QItemSelectionModel::ClearAndSelect);
  ranges_.clear();
  for (const int row : rows_in_order) {
    if (!ranges_.empty() && ranges_.back().last + 1 == row) {
      ranges_.back().last = row;
    } else {
      ranges_.push_back({row, row});
    }
  }
}

}  // namespace ferrowind::qt
