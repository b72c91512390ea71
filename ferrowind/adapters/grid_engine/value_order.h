#pragma once

#include <cstdint>

#include "ferrowind/platform/values/value.h"

namespace ferrowind::grid_engine {

/// The order in which a grid sorts values: negative, zero or positive as `left` stands before, beside or
/// behind `right`.
///
/// Empty stands first, then numbers and booleans by their amount whatever their width (not-a-number before
/// all others), then dates, then texts without regard to letter case, then objects, which are all alike.
[[nodiscard]] int CompareValues(const platform::Value& left, const platform::Value& right);

/// Whether the two are the same value: numbers of different widths may be, texts must be alike in letter case
/// too.
[[nodiscard]] bool SameValue(const platform::Value& left, const platform::Value& right);

/// The kinds of values in the order in which they sort.
enum class ValueKind { kEmpty, kNumber, kDate, kText, kObject };
[[nodiscard]] ValueKind KindOf(const platform::Value& value);

/// The value as a whole number, or null for a value that is none.
struct WholeNumber {
  bool is_whole = false;
  std::int64_t amount = 0;
};
[[nodiscard]] WholeNumber AsWholeNumber(const platform::Value& value);
/// Precondition: the value is a number. Negative zero becomes zero.
[[nodiscard]] double AsDouble(const platform::Value& value);

}  // namespace ferrowind::grid_engine
