#pragma once

#include <optional>
#include <vector>

namespace ferrowind::table_engine {

/// What a column asks for. Widths are in whatever unit the table is drawn in that has about 96 to an inch.
struct ColumnWish {
  /// At which its caption and its cells are read in full, within reason.
  int fitting = 0;
  /// At which its caption is.
  int caption = 0;
  /// Whether it takes what the others leave.
  bool stretches = false;
  /// The width that the operator gave it, which it keeps.
  std::optional<int> settled = std::nullopt;
};

/// The widths of the columns of a table that is as wide as `room`.
///
/// A column that stretches holds what there is most to say about. Where it lacks room the others give it what
/// they have beyond a name or a date in full; where those that stretch have enough together, each can be
/// read. The widths together are more than `room` only when each column has what it needs at least.
[[nodiscard]] std::vector<int> WidthsWithin(int room, const std::vector<ColumnWish>& columns);

}  // namespace ferrowind::table_engine
