#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/grid_content/stored_column.h"

namespace ferrowind::grid_content {

/// The columns of a grid in the order of adding.
class StoredColumns {
 public:
  StoredColumns(std::string grid_name, StoredColumn::Listener listener)
      : grid_name_(std::move(grid_name)), listener_(std::move(listener)) {}

  /// Throws the failure of `platform::Grid` that such a column cannot be added for.
  void RequireAddable(std::int32_t type, std::int32_t edit_type, const std::string& key) const;
  /// Precondition: `RequireAddable`.
  StoredColumn& Add(const std::string& caption, const std::string& key);
  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(columns_.size()); }
  [[nodiscard]] StoredColumn& ByKey(const std::string& key) const;
  /// Null when there is none.
  [[nodiscard]] StoredColumn* Find(const std::string& key) const;
  [[nodiscard]] StoredColumn& At(std::int32_t index) const;
  /// Precondition: there is a column of that 1-based index.
  [[nodiscard]] const StoredColumn& operator[](std::int32_t index) const {
    return *columns_[static_cast<std::size_t>(index) - 1];
  }

  /// The columns of now survive the next `DropUnheld`, which takes the hold off.
  void Hold() { held_count_ = columns_.size(); }
  void DropUnheld();

 private:
  std::string grid_name_;
  StoredColumn::Listener listener_;
  std::vector<std::unique_ptr<StoredColumn>> columns_;
  /// Kept, since a column lives as long as its grid.
  std::vector<std::unique_ptr<StoredColumn>> dropped_;
  std::size_t held_count_ = 0;
};

}  // namespace ferrowind::grid_content
