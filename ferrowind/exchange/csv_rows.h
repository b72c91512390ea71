#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ferrowind::exchange {

struct CsvRow {
  /// Where it begins, from 1 on.
  std::size_t line = 0;
  std::vector<std::string> fields;
};

/// The rows of a table as RFC 4180 has them, but for those that are blank. Fields are separated by whichever
/// of comma, semicolon and tab stands first outside of quotation marks. A quotation mark that is not closed,
/// or not followed by the end of its field, is a `ListError`.
[[nodiscard]] std::vector<CsvRow> ReadCsvRows(std::string_view text);

/// `text` as a field between commas.
[[nodiscard]] std::string CsvField(std::string_view text);

}  // namespace ferrowind::exchange
