#pragma once

#include <sqlite3.h>

namespace ferrowind::sqlite {

/// Sets what keeps SQL and foreign files from doing harm on a new connection: nothing is loaded into the
/// program, schemas are not trusted, SQLite's own tables are not written, texts and nesting are limited,
/// and no function of SQL takes long.
/// Takes effect without looking into the file. Returns SQLite's result code.
[[nodiscard]] int GuardConnection(sqlite3* database) noexcept;

}  // namespace ferrowind::sqlite
