#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {

/// Dates that no formula of this library gives: lunar, solar-term, Islamic and Hebrew days, announced days.
struct DateTable {
  /// As expressions name it.
  std::string name;
  /// The years that the table reaches: every date of theirs stands in it, so a year of them without a date
  /// has none.
  int first_year = 0;
  int last_year = 0;
  /// Ascending, each once, all within the years.
  std::vector<platform::Date> dates;

  [[nodiscard]] bool Reaches(int year) const { return first_year <= year && year <= last_year; }
};

/// Whether an expression can name a table so: words of small letters and digits joined by "-", each beginning
/// with a letter.
[[nodiscard]] bool IsTableName(std::string_view name);

/// Reads a table as files in database/seed/tables are written: UTF-8; blank lines and lines that begin with
/// "#" mean nothing; `years FIRST LAST`; then one date YYYY-MM-DD a line, ascending. `TextError`
/// (text_error.h) for anything else.
[[nodiscard]] DateTable ReadDateTable(std::string name, std::string_view text);

/// Tables by their names.
class DateTables {
 public:
  /// A table of the same name is replaced.
  void Add(DateTable table);
  /// Null when there is none of that name; valid until the tables change.
  [[nodiscard]] const DateTable* Find(std::string_view name) const;
  /// Ordered by name.
  [[nodiscard]] const std::vector<DateTable>& All() const { return tables_; }

 private:
  std::vector<DateTable> tables_;
};

}  // namespace ferrowind::almanac
