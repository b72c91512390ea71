#pragma once

#include <sqlite3.h>

namespace ferrowind::sqlite {

/// Gives `database` the collation FERROWIND_NAME, which the schema compares names with: without regard to
/// letter case and outer blanks. Returns SQLite's result code.
[[nodiscard]] int AddNameCollation(sqlite3* database) noexcept;

}  // namespace ferrowind::sqlite
