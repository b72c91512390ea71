#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "ferrowind/adapters/content/schema_upgrade.h"
#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// The procedures that this program brings.
[[nodiscard]] std::vector<sql_script::ProcedureDefinition> DeliveredProcedures();

/// The statements that make the tables, views, indexes and triggers of a new database; it lives for good.
[[nodiscard]] std::string_view DeliveredTables();

/// Fills the empty `database` with what every calendar database holds: tables, types, the built-in rule, the
/// setting, currencies, procedures. In the transaction that is open, or one for each statement.
void FillWithDeliveredSchema(DatabaseHandle& database);

/// The scripts that bring databases of older versions to this program's.
[[nodiscard]] const std::vector<content::UpgradeScript>& DeliveredUpgrades();

/// The version of the schema of `database`.
[[nodiscard]] std::int64_t SchemaVersionOf(const DatabaseHandle& database);

/// A failure that says what to do, when `database` has another version of the schema than this program: the
/// tables of an older one may lack what this program writes, and those of a newer one may ask for what it
/// does not know. Asked in a transaction, so that the version stays what it is.
void RequireDeliveredVersion(const DatabaseHandle& database);

}  // namespace ferrowind::sqlite
