#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/grid_content/computed_cells.h"
#include "ferrowind/adapters/grid_content/stored_columns.h"
#include "ferrowind/adapters/grid_engine/key_values.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::grid_content {

/// The values in the cells of a grid's records, from the record set or computed. Columns are meant by their
/// 1-based index. The texts shown for them are the adapter's, in the operator's language.
class RecordCells : public grid_engine::KeyValues {
 public:
  using Bookmark = platform::RecordSet::Bookmark;
  /// Runs a handler on behalf of the event loop, and lets nothing that it throws get out.
  using HandlerRunner = std::function<void(const std::function<void()>& handler)>;

  /// `columns` outlive the cells.
  RecordCells(const StoredColumns& columns, HandlerRunner run);

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
  /// Whether the cell shows a number as such, not a text that stands for it.
  [[nodiscard]] bool ShowsNumber(std::int16_t column, grid_engine::Record record) const;
  /// Whether the first cell of the column that is not empty shows a number.
  [[nodiscard]] bool IsNumberColumn(std::int16_t column) const;

  /// For the events of `platform::Grid` of these names.
  [[nodiscard]] platform::Subscription OnUnboundValue(
      std::function<void(Bookmark bookmark, std::int16_t column, platform::Value& receiver)> handler);
  [[nodiscard]] platform::Subscription OnUnboundOrder(
      std::function<void(Bookmark bookmark, std::int16_t column, platform::Value& receiver)> handler);
  [[nodiscard]] platform::Subscription OnCellText(
      std::function<void(Bookmark bookmark, std::int16_t column, std::string& text)> handler);

 protected:
  [[nodiscard]] const StoredColumns& Columns() const { return columns_; }
  /// Whether a handler may reword what cells show, which spares the detour where there is none.
  [[nodiscard]] bool AsksForTexts() const { return has_cell_text_handlers_ && !is_muted_; }
  /// Lets the handlers reword the text of a cell.
  void AskForText(std::int16_t column, grid_engine::Record record, std::string& text) const;

 private:
  const StoredColumns& columns_;
  HandlerRunner run_;
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

}  // namespace ferrowind::grid_content
