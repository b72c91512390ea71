#include "ferrowind/adapters/qt/table/table_model.h"

#include "ferrowind/adapters/qt/table/cell_words.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

void TableModel::ContentReplaced() {
  beginResetModel();
  endResetModel();
}

void TableModel::ChecksChanged() {
  if (rowCount() > 0 && columnCount() > 0)
    emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole, Qt::AccessibleTextRole});
}

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(content_.RowCount());
}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(content_.Columns().size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto place = static_cast<std::size_t>(index.row());
  const platform::TableCell& cell = content_.CellAt(place, static_cast<std::size_t>(index.column()));
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(cell.text);
    case Qt::AccessibleTextRole:
      return SpokenText(cell);
    case Qt::AccessibleDescriptionRole:
      return ToQt(cell.description);
    case Qt::CheckStateRole:
      if (const auto& box = content_.RowAt(place).checked; box && index.column() == 0)
        return *box ? Qt::Checked : Qt::Unchecked;
      return {};
    default:
      return {};
  }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount())
    return {};
  return ToQt(content_.Columns()[static_cast<std::size_t>(section)].caption);
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const bool has_box =
      index.column() == 0 && content_.RowAt(static_cast<std::size_t>(index.row())).checked.has_value();
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren |
         (has_box ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

}  // namespace ferrowind::qt
