#pragma once

#include <optional>

#include "ferrowind/adapters/grid_engine/expansion_memory.h"
#include "ferrowind/adapters/grid_engine/key_values.h"

namespace ferrowind::grid_content {

/// What makes a row the same row after another sort or grouping: its record, or the path of its group.
struct RowIdentity {
  std::optional<grid_engine::Record> record;
  /// Of a group row.
  grid_engine::GroupPath path;

  [[nodiscard]] bool IsNone() const { return !record && path.empty(); }
  friend bool operator==(const RowIdentity& left, const RowIdentity& right) {
    const grid_engine::GroupPathLess less;
    return left.record == right.record && !less(left.path, right.path) && !less(right.path, left.path);
  }
};

}  // namespace ferrowind::grid_content
