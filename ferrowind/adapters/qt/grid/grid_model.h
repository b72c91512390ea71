#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "ferrowind/adapters/qt/grid/grid_content.h"

namespace ferrowind::qt {

/// The visible rows of a grid, data rows and group rows alike, as a flat table. Its columns are those of the
/// grid in the order of their indices.
class GridModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `content` must outlive the model.
  GridModel(GridContent& content, QObject* parent);

  [[nodiscard]] const GridContent& Content() const { return content_; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Runs a change after which any row or column may be another one.
  void Reset(const std::function<void()>& change);
  /// Runs a change that appends one column.
  void AppendColumn(const std::function<void()>& change);
  void SetExpanded(grid_engine::GroupId group, bool is_expanded);
  /// The texts of all cells or headers may have changed.
  void CellsChanged();
  void HeadersChanged();

  /// "Month: May (31)".
  [[nodiscard]] QString GroupText(grid_engine::GroupId group) const;

 private:
  [[nodiscard]] QVariant GroupData(grid_engine::GroupId group, const QModelIndex& index, int role) const;

  GridContent& content_;
};

}  // namespace ferrowind::qt
