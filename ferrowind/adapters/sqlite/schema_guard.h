#pragma once

#include <cstdint>
#include <optional>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/statement.h"

namespace ferrowind::sqlite {

/// Stands between a file that may come from anywhere and the statements that read it: what somebody has put
/// into its schema would run with them. Each view, trigger and virtual table must be one that a program of
/// ours has made, and so must the tables of our names when the file is of this version. Other plain tables
/// and indexes run nothing that does harm, and may be there.
class SchemaGuard {
 public:
  /// `database` must outlive the object.
  explicit SchemaGuard(const DatabaseHandle& database);

  /// A failure that names what is foreign. Asked in the transaction that uses the database, where it is; it
  /// looks once, and again when somebody has changed the schema. Runs nothing of what the file holds.
  void Look();

 private:
  const DatabaseHandle& database_;
  Statement ask_cookie_;
  /// SQLite's number of the schema that was found sound; while it is the same, SQLite itself uses the schema
  /// that it has read.
  std::optional<std::int64_t> sound_;
};

/// A failure unless `database` is a calendar database with nothing foreign in its schema, of whatever
/// version.
void RequireCalendarDatabase(const DatabaseHandle& database);

}  // namespace ferrowind::sqlite
