#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/grid_content/stored_columns.h"
#include "ferrowind/adapters/grid_content/stored_key_list.h"

namespace ferrowind::grid_content {

/// What an operator made of a grid's columns, told by column keys.
struct GridLayout {
  struct Column {
    std::string key;
    /// In pixels of 96 to the inch.
    int width = 0;
    bool is_visible = true;
  };
  struct Key {
    std::string column_key;
    std::int32_t sort_order = 0;
  };

  /// From left to right.
  std::vector<Column> columns;
  std::vector<Key> sort_keys;
  std::vector<Key> group_keys;
};

/// The layout as text, for a setting.
[[nodiscard]] std::string EncodeLayout(const GridLayout& layout);
/// Reads what `EncodeLayout` wrote. Nothing for any other text, for a column named twice, and for widths and
/// orders that no grid has.
[[nodiscard]] std::optional<GridLayout> DecodeLayout(const std::string& text);

/// The keys of a list, for a layout.
[[nodiscard]] std::vector<GridLayout::Key> KeysOf(const StoredColumns& columns, const StoredKeyList& keys);
/// Replaces the keys by those of a layout, but for columns that there are not.
void RestoreKeys(const StoredColumns& columns, const std::vector<GridLayout::Key>& saved,
                 StoredKeyList& keys);

}  // namespace ferrowind::grid_content
