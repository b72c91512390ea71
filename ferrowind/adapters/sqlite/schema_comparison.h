#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// What makes the schema of `found` another than that of `delivered`, in sentences that name it: the file's
/// own numbers and modes, and tables, views, indexes and triggers, whatever their names; what SQLite itself
/// adds to a file that was analyzed is no difference. Runs nothing of what `found` holds.
[[nodiscard]] std::vector<std::string> SchemaDifferences(const DatabaseHandle& found,
                                                         const DatabaseHandle& delivered);

/// Whether `found` holds a table or an index that `delivered` has not, or has otherwise.
[[nodiscard]] bool HasForeignTables(const DatabaseHandle& found, const DatabaseHandle& delivered);

/// The tables that `database` has, views apart.
[[nodiscard]] std::vector<std::string> TableNames(const DatabaseHandle& database);

/// Whether every name that `delivered` has a table for, `found` has a table of its own file for, or nothing:
/// not a view, a virtual table or one with generated columns, which run what somebody wrote when they are
/// read.
[[nodiscard]] bool HasPlainTables(const DatabaseHandle& found, const DatabaseHandle& delivered);

}  // namespace ferrowind::sqlite
