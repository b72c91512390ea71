#include "bench/grid_peers.h"

#include <QDate>
#include <string>
#include <utility>

#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::bench {

namespace {

QVariant AsVariant(const platform::Value& value) {
  if (const auto* text = value.If<std::string>()) return QString::fromStdString(*text);
  if (const auto* date = value.If<platform::Date>()) return QDate(date->Year(), date->Month(), date->Day());
  if (value.IsEmpty()) return {};
  if (value.Is<double>()) return platform::ToDouble(value);
  return platform::ToInt32(value);
}

int Compare(const QVariant& left, const QVariant& right) {
  if (left.typeId() == QMetaType::QString && right.typeId() == QMetaType::QString) {
    return QString::compare(left.toString(), right.toString(), Qt::CaseInsensitive);
  }
  const QPartialOrdering order = QVariant::compare(left, right);
  if (order == QPartialOrdering::Less) return -1;
  return order == QPartialOrdering::Greater ? 1 : 0;
}

/// The level of an index: a group of the first level carries 0, one in the group g carries g + 1, a row in
/// the group h of the second level (all counted) carries -(h + 1).
constexpr quintptr kTop = 0;

}  // namespace

void RecordTableModel::SetRecords(std::shared_ptr<platform::RecordSet> records) {
  beginResetModel();
  records_ = std::move(records);
  endResetModel();
}

int RecordTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || records_ == nullptr ? 0 : static_cast<int>(records_->RowCount());
}

int RecordTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || records_ == nullptr ? 0 : static_cast<int>(records_->FieldCount());
}

QVariant RecordTableModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  const auto bookmark = records_->BookmarkAt(static_cast<std::size_t>(index.row()));
  return AsVariant(records_->Cell(bookmark, static_cast<std::size_t>(index.column())));
}

bool TwoColumnSort::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  for (const int column : {first_, second_}) {
    const int order = Compare(left.siblingAtColumn(column).data(), right.siblingAtColumn(column).data());
    if (order != 0) return order < 0;
  }
  return false;
}

QModelIndex GroupedTreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (!parent.isValid()) return createIndex(row, column, kTop);
  const auto id = static_cast<qintptr>(parent.internalId());
  if (id == 0) return createIndex(row, column, static_cast<quintptr>(parent.row() + 1));
  const qintptr second_level = (id - 1) * groups_in_each_ + parent.row();
  return createIndex(row, column, static_cast<quintptr>(-(second_level + 1)));
}

QModelIndex GroupedTreeModel::parent(const QModelIndex& child) const {
  const auto id = static_cast<qintptr>(child.internalId());
  if (id == 0) return {};
  if (id > 0) return createIndex(static_cast<int>(id - 1), 0, kTop);
  const qintptr second_level = -id - 1;
  return createIndex(static_cast<int>(second_level % groups_in_each_), 0,
                     static_cast<quintptr>(second_level / groups_in_each_ + 1));
}

int GroupedTreeModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return groups_;
  if (parent.column() > 0) return 0;
  const auto id = static_cast<qintptr>(parent.internalId());
  if (id == 0) return groups_in_each_;
  return id > 0 ? rows_in_each_ : 0;
}

int GroupedTreeModel::columnCount(const QModelIndex& /*parent*/) const { return columns_; }

QVariant GroupedTreeModel::data(const QModelIndex& index, int role) const {
  return role == Qt::DisplayRole ? QVariant(index.row()) : QVariant();
}

}  // namespace ferrowind::bench
