#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <memory>
#include <vector>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::bench {

/// A record set as a plain table model, as one writes it first.
class RecordTableModel final : public QAbstractTableModel {
 public:
  void SetRecords(std::shared_ptr<platform::RecordSet> records);
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::shared_ptr<platform::RecordSet> records_;
};

/// Sorts by two columns of its source, asking it for the data of each comparison.
class TwoColumnSort : public QSortFilterProxyModel {
 public:
  TwoColumnSort(int first, int second) : first_(first), second_(second) {}

 protected:
  [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  int first_;
  int second_;
};

/// A tree of two levels of groups over rows, for a `QTreeView`: every group of the first level holds as many
/// groups, and each of these as many rows.
class GroupedTreeModel final : public QAbstractItemModel {
 public:
  GroupedTreeModel(int groups, int groups_in_each, int rows_in_each, int columns)
      : groups_(groups), groups_in_each_(groups_in_each), rows_in_each_(rows_in_each), columns_(columns) {}

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  int groups_;
  int groups_in_each_;
  int rows_in_each_;
  int columns_;
};

}  // namespace ferrowind::bench
