#include "ferrowind/adapters/content/content_comparison.h"

#include <algorithm>

namespace ferrowind::content {
namespace {

using platform::Value;

std::optional<std::int64_t> WholeNumber(const Value& value) {
  if (const auto* number = value.If<std::int16_t>()) return *number;
  if (const auto* number = value.If<std::int32_t>()) return *number;
  if (const auto* number = value.If<std::int64_t>()) return *number;
  return std::nullopt;
}

bool IsSame(const Value& left, const Value& right) {
  if (left == right) return true;
  const auto number = WholeNumber(left);
  return number && number == WholeNumber(right);
}

}  // namespace

std::optional<std::int64_t> FirstDifference(Source& left, Source& right, const Table& table,
                                            const std::function<void()>& seen) {
  const auto left_rows = left.Rows(table, RowOrder::kByKey);
  const auto right_rows = right.Rows(table, RowOrder::kByKey);
  Row left_row;
  Row right_row;
  for (std::int64_t position = 1;; ++position) {
    const bool has_left = left_rows->Next(left_row);
    if (has_left != right_rows->Next(right_row)) return position;
    if (!has_left) return std::nullopt;
    if (!std::equal(left_row.begin(), left_row.end(), right_row.begin(), right_row.end(), IsSame)) {
      return position;
    }
    if (seen) seen();
  }
}

}  // namespace ferrowind::content
