#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/record_set.h"
#include "ferrowind/platform/values/row_filter_step.h"

namespace ferrowind::platform {

/// A filter over the rows of a record set, compiled once and then asked row by row.
///
///     filter     = conjunction { "or" conjunction }
///     conjunction = term { "and" term }
///     term       = "(" filter ")" | comparison
///     comparison = field ( "=" | "<>" | "<" | "<=" | ">" | ">=" ) literal
///     field      = a letter or "_", then letters, digits and "_" | "[" anything but "]" "]"
///     literal    = number | 'text' (a quote inside is doubled) | #date# | NULL
///
/// Words are read without regard to case; "and", "or" and "NULL" name a field only in brackets. Letters are
/// those of ASCII and everything beyond ASCII. A date is written YYYY-MM-DD or MM/DD/YYYY. `field = NULL` is
/// true for an empty field and `field <> NULL` for a filled one; any other comparison with an empty field or
/// with NULL is false. Texts compare without regard to case, numbers by their exact values, a boolean as -1
/// or 0; a field that cannot be compared with the literal's type makes the comparison false, whatever the
/// operator. Parentheses nest at most 100 deep.
class FERROWIND_EXPORT RowFilter {
 public:
  /// Compiles `text` for records with those fields. Text that does not parse or names an unknown field is the
  /// failure 3001; its description quotes the text and names the 1-based place in it.
  RowFilter(std::string_view text, const std::vector<std::string>& fields);

  /// Whether the 0-based row `row` passes. Precondition: `rows` has the fields that the filter was compiled
  /// for.
  [[nodiscard]] bool Matches(const RecordRows& rows, std::size_t row) const;

 private:
  /// Steps lead only to later steps, so that every row is decided after as many comparisons as there are at
  /// most.
  std::vector<RowFilterStep> steps_;
};

}  // namespace ferrowind::platform
