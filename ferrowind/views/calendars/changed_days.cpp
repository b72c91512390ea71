#include "ferrowind/views/calendars/changed_days.h"

#include <algorithm>
#include <cstddef>

namespace ferrowind {
namespace {

using platform::RecordSet;

bool IsSameRow(const RecordSet& before, const RecordSet& after, std::size_t position) {
  const auto old_row = before.BookmarkAt(position);
  const auto new_row = after.BookmarkAt(position);
  for (std::size_t field = 0; field < after.FieldCount(); ++field) {
    if (!(before.Cell(old_row, field) == after.Cell(new_row, field))) return false;
  }
  return true;
}

}  // namespace

std::int32_t ChangedDays(const RecordSet& before, const RecordSet& after) {
  const std::size_t most = std::max(before.RowCount(), after.RowCount());
  if (before.FieldCount() != after.FieldCount()) return static_cast<std::int32_t>(most);
  const std::size_t both = std::min(before.RowCount(), after.RowCount());
  std::size_t changed = most - both;
  for (std::size_t position = 0; position < both; ++position) {
    if (!IsSameRow(before, after, position)) ++changed;
  }
  return static_cast<std::int32_t>(changed);
}

}  // namespace ferrowind
