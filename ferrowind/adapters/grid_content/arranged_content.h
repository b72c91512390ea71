#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "ferrowind/adapters/grid_content/record_cells.h"
#include "ferrowind/adapters/grid_content/row_formats.h"
#include "ferrowind/adapters/grid_content/row_identity.h"
#include "ferrowind/adapters/grid_content/stored_columns.h"
#include "ferrowind/adapters/grid_content/stored_key_list.h"
#include "ferrowind/adapters/grid_engine/row_arrangement.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::grid_content {

/// What a grid shows, apart from any window: columns, keys, cells, formats and the arrangement of rows. Rows
/// count from 0 here.
///
/// `CellsOfRecords` are the adapter's `RecordCells`, made of the grid's name and its columns.
template <typename CellsOfRecords>
class ArrangedContent {
 public:
  /// Called after a change that shows at once, or in the next arrangement.
  struct Listener {
    std::function<void(StoredColumn& column)> column_visibility_changed;
    std::function<void()> cells_changed;
    std::function<void()> keys_changed;
    std::function<void()> captions_changed;
  };

  ArrangedContent(const std::string& grid_name, Listener listener)
      : listener_(std::move(listener)),
        columns_(grid_name,
                 {[this](StoredColumn& column) {
                    cells_.BindFields();
                    rows_.ForgetColumn(column.Index());
                    listener_.cells_changed();
                  },
                  [this](StoredColumn& column) { listener_.column_visibility_changed(column); },
                  [this] { listener_.captions_changed(); },
                  [this](const StoredColumn& column) { return sort_keys_.OrderOf(column.Index()); }}),
        cells_(grid_name, columns_),
        sort_keys_([this] { return columns_.Count(); }, [this] { listener_.keys_changed(); }),
        group_keys_([this] { return columns_.Count(); }, [this] { listener_.keys_changed(); }),
        rows_(cells_) {}
  ArrangedContent(const ArrangedContent&) = delete;
  ArrangedContent& operator=(const ArrangedContent&) = delete;

  [[nodiscard]] StoredColumns& Columns() { return columns_; }
  [[nodiscard]] const StoredColumns& Columns() const { return columns_; }
  [[nodiscard]] CellsOfRecords& Cells() { return cells_; }
  [[nodiscard]] const CellsOfRecords& Cells() const { return cells_; }
  [[nodiscard]] StoredKeyList& SortKeys() { return sort_keys_; }
  [[nodiscard]] StoredKeyList& GroupKeys() { return group_keys_; }
  [[nodiscard]] const StoredKeyList& SortKeys() const { return sort_keys_; }
  [[nodiscard]] const StoredKeyList& GroupKeys() const { return group_keys_; }
  [[nodiscard]] RowFormats& Formats() { return formats_; }
  [[nodiscard]] const RowFormats& Formats() const { return formats_; }
  [[nodiscard]] grid_engine::RowArrangement& Rows() { return rows_; }
  [[nodiscard]] const grid_engine::RowArrangement& Rows() const { return rows_; }

  /// Takes another record set and drops all keys and the columns that were not held.
  void Attach(std::shared_ptr<platform::RecordSet> records) {
    columns_.DropUnheld();
    sort_keys_.Clear();
    group_keys_.Clear();
    cells_.Attach(std::move(records));
    rows_.SetRecords(cells_.RecordCount());
    if (choose_) LeaveOutRows();
  }
  /// As `platform::Grid::Narrow`.
  void Narrow(platform::Grid::RowChoice choose) {
    choose_ = std::move(choose);
    LeaveOutRows();
  }
  void Rebind() {
    cells_.BindFields();
    Arrange(true);
  }
  /// Sorts and groups by the keys of now.
  void Arrange(bool recompute) {
    if (recompute) {
      cells_.ForgetComputed();
      for (std::int32_t index = 1; index <= columns_.Count(); ++index) {
        if (columns_[index].Unbound()) rows_.ForgetColumn(static_cast<std::int16_t>(index));
      }
    }
    rows_.Arrange(group_keys_.ForArrangement(), sort_keys_.ForArrangement());
  }

  [[nodiscard]] RowLook LookOf(grid_engine::Record record) const {
    return formats_.LookOf(record, cells_, columns_);
  }
  /// The record in that row; nothing for a group row.
  [[nodiscard]] std::optional<grid_engine::Record> RecordInRow(std::uint32_t row) const {
    const grid_engine::VisibleRow shown = rows_.RowAt(row);
    if (shown.is_group) return std::nullopt;
    return rows_.RecordAt(shown.position);
  }

  [[nodiscard]] RowIdentity IdentityOf(std::uint32_t row) const {
    const grid_engine::VisibleRow shown = rows_.RowAt(row);
    if (shown.is_group) return {std::nullopt, rows_.PathOf(shown.group)};
    return {rows_.RecordAt(shown.position), {}};
  }
  /// Where the row of that identity is now: the row itself, or that of the collapsed group that hides it.
  [[nodiscard]] std::optional<std::uint32_t> RowShowing(const RowIdentity& identity) const {
    if (identity.record) {
      if (*identity.record >= rows_.RecordCount()) return std::nullopt;
      return rows_.RowShowing(*identity.record);
    }
    auto group = rows_.GroupOf(identity.path);
    while (group) {
      if (const auto row = rows_.Groups().RowOf(*group)) return row;
      group = rows_.Groups().ParentOf(*group);
    }
    return std::nullopt;
  }

 private:
  void LeaveOutRows() {
    if (choose_ && cells_.Records()) {
      const auto shows = choose_(cells_.Records());
      rows_.ShowOnly([&](grid_engine::Record record) { return shows(cells_.BookmarkOf(record)); });
    } else {
      rows_.ShowOnly({});
    }
  }

  Listener listener_;
  StoredColumns columns_;
  CellsOfRecords cells_;
  StoredKeyList sort_keys_;
  StoredKeyList group_keys_;
  RowFormats formats_;
  grid_engine::RowArrangement rows_;
  /// Empty to show all records.
  platform::Grid::RowChoice choose_;
};

}  // namespace ferrowind::grid_content
