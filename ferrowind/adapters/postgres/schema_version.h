#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/adapters/content/schema_upgrade.h"
#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// The scripts that bring databases of older versions to this program's; they run as the owner, with the
/// schema as their search path.
[[nodiscard]] const std::vector<content::UpgradeScript>& DeliveredUpgrades();

/// The version of this program's schema.
[[nodiscard]] std::int64_t DeliveredVersion();

/// A failure unless the database has the schema of a calendar database, of whatever version.
void RequireCalendarDatabase(ServerConnection& connection);

/// The version of the schema of the calendar database.
[[nodiscard]] std::int64_t SchemaVersionOf(ServerConnection& connection);

/// A failure unless the calendar database is of this program's version.
void RequireDeliveredVersion(ServerConnection& connection);

}  // namespace ferrowind::postgres
