#include "ferrowind/adapters/qt/grid/grid_model.h"

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

using grid_engine::GroupId;
using grid_engine::VisibleRow;

namespace {

QVariant AlignmentOf(bool is_number) {
  return {Qt::AlignVCenter | (is_number ? Qt::AlignRight : Qt::AlignLeft)};
}

}  // namespace

GridModel::GridModel(GridContent& content, QObject* parent)
    : QAbstractTableModel(parent), content_(content) {}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(content_.Rows().RowCount());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : content_.Columns().Count();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount()) return {};
  const VisibleRow row = content_.Rows().RowAt(static_cast<std::uint32_t>(index.row()));
  if (row.is_group) return GroupData(row.group, index, role);
  const auto column = static_cast<std::int16_t>(index.column() + 1);
  const grid_engine::Record record = content_.Rows().RecordAt(row.position);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return content_.Cells().ShownText(column, record);
    case Qt::TextAlignmentRole:
      return AlignmentOf(content_.Cells().ShowsNumber(column, record));
    default:
      return {};
  }
}

QVariant GridModel::GroupData(GroupId group, const QModelIndex& index, int role) const {
  switch (role) {
    case Qt::DisplayRole:
      // The group's text runs over the whole row; giving it in each column would repeat it where rows are
      // read out.
      return index.column() == 0 ? GroupText(group) : QString();
    case Qt::AccessibleTextRole:
      return GroupText(group);
    case Qt::AccessibleDescriptionRole: {
      const QString state =
          content_.Rows().Groups().IsExpanded(group) ? Translated("expanded") : Translated("collapsed");
      return Translated("Group, level %1, %2").arg(group.level + 1).arg(state);
    }
    default:
      return {};
  }
}

QString GridModel::GroupText(GroupId group) const {
  const GroupLabel label = content_.LabelOf(group);
  return label.caption + QStringLiteral(": ") + label.value + QStringLiteral(" (") +
         QString::number(label.record_count) + QStringLiteral(")");
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const grid_content::StoredColumn& column = content_.Columns()[section + 1];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return ToQt(column.Caption());
    case Qt::TextAlignmentRole:
      return AlignmentOf(content_.Cells().IsNumberColumn(static_cast<std::int16_t>(section + 1)));
    case Qt::AccessibleDescriptionRole: {
      const std::int32_t order = column.SortOrder();
      if (order == platform::kSortAscending) return Translated("sorted ascending");
      if (order == platform::kSortDescending) return Translated("sorted descending");
      return {};
    }
    default:
      return {};
  }
}

void GridModel::Reset(const std::function<void()>& change) {
  beginResetModel();
  change();
  endResetModel();
}

void GridModel::AppendColumn(const std::function<void()>& change) {
  beginInsertColumns({}, columnCount(), columnCount());
  change();
  endInsertColumns();
}

void GridModel::SetExpanded(GroupId group, bool is_expanded) {
  const grid_engine::GroupTree& groups = content_.Rows().Groups();
  if (groups.IsExpanded(group) == is_expanded) return;
  const auto row = groups.RowOf(group);
  if (!row) {
    content_.Rows().SetExpanded(group, is_expanded);
    return;
  }
  const int first = static_cast<int>(*row) + 1;
  const int last = static_cast<int>(*row + groups.RowsWithin(group));
  if (is_expanded) {
    beginInsertRows({}, first, last);
  } else {
    beginRemoveRows({}, first, last);
  }
  content_.Rows().SetExpanded(group, is_expanded);
  if (is_expanded) {
    endInsertRows();
  } else {
    endRemoveRows();
  }
  emit dataChanged(index(first - 1, 0), index(first - 1, columnCount() - 1));
}

void GridModel::CellsChanged() {
  if (rowCount() == 0 || columnCount() == 0) return;
  emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void GridModel::HeadersChanged() {
  if (columnCount() > 0) emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

}  // namespace ferrowind::qt
