#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/adapters/grid_engine/row_arrangement.h"
#include "ferrowind/adapters/qt/grid/grid_cells.h"
#include "ferrowind/adapters/qt/grid/grid_columns.h"
#include "ferrowind/adapters/qt/grid/qt_grid_key_list.h"
#include "ferrowind/adapters/qt/grid/row_formats.h"
#include "ferrowind/adapters/qt/grid/row_identity.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::qt {

/// What a group row says.
struct GroupLabel {
  QString caption;
  QString value;
  std::uint32_t record_count = 0;
};

/// What a grid shows, apart from any widget: columns, keys, cells, formats and the arrangement of rows. Rows
/// count from 0 here.
class GridContent {
 public:
  /// Called after a change that shows at once, or in the next arrangement.
  struct Listener {
    std::function<void(QtGridColumn& column)> column_visibility_changed;
    std::function<void()> cells_changed;
    std::function<void()> keys_changed;
    std::function<void()> captions_changed;
  };

  GridContent(const std::string& grid_name, Listener listener);

  [[nodiscard]] GridColumns& Columns() { return columns_; }
  [[nodiscard]] const GridColumns& Columns() const { return columns_; }
  [[nodiscard]] GridCells& Cells() { return cells_; }
  [[nodiscard]] const GridCells& Cells() const { return cells_; }
  [[nodiscard]] QtGridKeyList& SortKeys() { return sort_keys_; }
  [[nodiscard]] QtGridKeyList& GroupKeys() { return group_keys_; }
  [[nodiscard]] const QtGridKeyList& SortKeys() const { return sort_keys_; }
  [[nodiscard]] const QtGridKeyList& GroupKeys() const { return group_keys_; }
  [[nodiscard]] RowFormats& Formats() { return formats_; }
  [[nodiscard]] const RowFormats& Formats() const { return formats_; }
  [[nodiscard]] grid_engine::RowArrangement& Rows() { return rows_; }
  [[nodiscard]] const grid_engine::RowArrangement& Rows() const { return rows_; }

  /// Takes another record set and drops all keys and the columns that were not held.
  void Attach(std::shared_ptr<platform::RecordSet> records);
  /// As `platform::Grid::Narrow`.
  void Narrow(platform::Grid::RowChoice choose);
  void Rebind();
  /// Sorts and groups by the keys of now.
  void Arrange(bool recompute);

  [[nodiscard]] RowLook LookOf(grid_engine::Record record) const {
    return formats_.LookOf(record, cells_, columns_);
  }
  [[nodiscard]] GroupLabel LabelOf(grid_engine::GroupId group) const;
  /// The record in that row; nothing for a group row.
  [[nodiscard]] std::optional<grid_engine::Record> RecordInRow(std::uint32_t row) const;

  [[nodiscard]] RowIdentity IdentityOf(std::uint32_t row) const;
  /// Where the row of that identity is now: the row itself, or that of the collapsed group that hides it.
  [[nodiscard]] std::optional<std::uint32_t> RowShowing(const RowIdentity& identity) const;

 private:
  void LeaveOutRows();

  Listener listener_;
  GridColumns columns_;
  GridCells cells_;
  QtGridKeyList sort_keys_;
  QtGridKeyList group_keys_;
  RowFormats formats_;
  grid_engine::RowArrangement rows_;
  /// Empty to show all records.
  platform::Grid::RowChoice choose_;
};

}  // namespace ferrowind::qt
