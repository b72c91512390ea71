#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_values.h"
#include "ferrowind/adapters/qt/grid/computed_cells.h"
#include "ferrowind/adapters/qt/grid/grid_columns.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::qt {

/// What stands in the cells of a grid's records: values from the record set or computed ones, and the texts
/// shown for them. Columns are meant by their 1-based index.
class GridCells final : public grid_engine::KeyValues {
 public:
  using Bookmark = platform::RecordSet::Bookmark;

  GridCells(std::string grid_name, const GridColumns& columns);

  /// Ends the events: cells that are not computed yet stay empty.
  void Mute() { is_muted_ = true; }

  /// Takes the rows that pass the record set's filter now.
  void Attach(std::shared_ptr<platform::RecordSet> records);
  [[nodiscard]] const std::shared_ptr<platform::RecordSet>& Records() const { return records_; }
  /// Finds the fields of all columns anew.
  void BindFields();
  void ForgetComputed() {
    computed_.Forget();
    orders_.Forget();
  }

  [[nodiscard]] std::uint32_t RecordCount() const { return record_count_; }
  [[nodiscard]] Bookmark BookmarkOf(grid_engine::Record record) const {
    return bookmarks_.empty() ? static_cast<Bookmark>(record + 1) : bookmarks_[record];
  }

  /// What the cell is sorted and grouped by: its value, unless a handler of `UnboundOrder` says otherwise.
  [[nodiscard]] const platform::Value& KeyValue(std::int16_t column,
                                                grid_engine::Record record) const override;
  [[nodiscard]] const platform::Value& CellValue(std::int16_t column, grid_engine::Record record) const;
  /// The text of a cell as it is shown.
  [[nodiscard]] QString ShownText(std::int16_t column, grid_engine::Record record) const;
  /// Whether the cell shows a number as such, not a text that stands for it.
  [[nodiscard]] bool ShowsNumber(std::int16_t column, grid_engine::Record record) const;
  /// Whether the first cell of the column that is not empty shows a number.
  [[nodiscard]] bool IsNumberColumn(std::int16_t column) const;
  /// The text that the column shows for a value, before any handler of `CellText` has a say.
  [[nodiscard]] QString TextOfValue(std::int16_t column, const platform::Value& value) const;

  /// For the events of `platform::Grid` of these names.
  [[nodiscard]] platform::Subscription OnUnboundValue(
      std::function<void(Bookmark bookmark, std::int16_t column, platform::Value& receiver)> handler);
  [[nodiscard]] platform::Subscription OnUnboundOrder(
      std::function<void(Bookmark bookmark, std::int16_t column, platform::Value& receiver)> handler);
  [[nodiscard]] platform::Subscription OnCellText(
      std::function<void(Bookmark bookmark, std::int16_t column, std::string& text)> handler);

 private:
  std::string grid_name_;
  const GridColumns& columns_;
  bool is_muted_ = false;
  std::shared_ptr<platform::RecordSet> records_;
  std::uint32_t record_count_ = 0;
  /// Empty while the records are all rows of the record set.
  std::vector<Bookmark> bookmarks_;
  /// By column index less 1.
  std::vector<std::optional<std::size_t>> fields_;
  ComputedCells computed_;
  ComputedCells orders_;
  platform::Signal<Bookmark, std::int16_t, platform::Value&> unbound_value_;
  platform::Signal<Bookmark, std::int16_t, platform::Value&> unbound_order_;
  /// Spares the second copy of every value while there never was a handler.
  bool has_order_handlers_ = false;
  platform::Signal<Bookmark, std::int16_t, std::string&> cell_text_;
  /// Spares the detour of every text through the handlers while there never was one.
  bool has_cell_text_handlers_ = false;
};

/// A value in the operator's language: dates in the short format of the locale, the rest as plain text.
[[nodiscard]] QString LocalizedText(const platform::Value& value);

}  // namespace ferrowind::qt
