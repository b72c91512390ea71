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
      return DescriptionOf(place, static_cast<std::size_t>(index.column()));
    case Qt::CheckStateRole:
      if (const auto& box = content_.RowAt(place).checked; box && index.column() == 0)
        return *box ? Qt::Checked : Qt::Unchecked;
      return {};
    default:
      return {};
  }
}

QString TableModel::DescriptionOf(std::size_t place, std::size_t column) const {
  QStringList parts;
  if (const QString own = ToQt(content_.CellAt(place, column).description); !own.isEmpty()) parts.append(own);
  for (std::size_t other = 0; reads_rows_ && other < content_.Columns().size(); ++other) {
    const QString said = other == column ? QString() : SpokenText(content_.CellAt(place, other));
    if (!said.isEmpty()) parts.append(ToQt(content_.Columns()[other].caption) + QStringLiteral(": ") + said);
  }
  return parts.join(QStringLiteral("; "));
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool is_text = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
  if (orientation != Qt::Horizontal || !is_text || section < 0 || section >= columnCount()) return {};
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
