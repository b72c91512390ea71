#pragma once

#include <optional>
#include <vector>

#include "ferrowind/adapters/grid_content/record_cells.h"
#include "ferrowind/platform/toolkit/grid_format.h"

namespace ferrowind::grid_content {

/// What the conditional formats make of a row.
struct RowLook {
  std::optional<platform::Color> fore_color;
  bool is_bold = false;
  bool is_struck_through = false;
  friend bool operator==(const RowLook&, const RowLook&) = default;
};

/// The conditional formats of a grid, in the order of adding.
class RowFormats {
 public:
  /// A comparison other than equal is the failure Invalid argument.
  void Add(const platform::GridFormat& format);
  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(formats_.size()); }
  /// Whether a row may be shown bold.
  [[nodiscard]] bool CanBeBold() const;
  [[nodiscard]] RowLook LookOf(grid_engine::Record record, const RecordCells& cells,
                               const StoredColumns& columns) const;

 private:
  std::vector<platform::GridFormat> formats_;
};

}  // namespace ferrowind::grid_content
