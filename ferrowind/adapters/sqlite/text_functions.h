#pragma once

#include <sqlite3.h>

namespace ferrowind::sqlite {

/// Puts functions in the place of SQLite's own INSTR and REPLACE that give the same and take as many steps as
/// their arguments and their result have bytes, however these are made: SQLite's own can take minutes for
/// texts of some megabytes, and nothing ends a function before it returns. TRIM with letters of its own takes
/// a few at most, and LIKE and GLOB match patterns of up to 100 bytes with texts of up to 64 KB. Returns
/// SQLite's result code.
[[nodiscard]] int ReplaceSlowTextFunctions(sqlite3* database) noexcept;

}  // namespace ferrowind::sqlite
