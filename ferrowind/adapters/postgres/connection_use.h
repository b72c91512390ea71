#pragma once

#include <vector>

#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// Who has how many of the server's connections, whatever the database: operators, readers, all others, and
/// all together, whose limit is what the server has for logins that are no superusers. Superusers, to whom no
/// limit applies, are others.
[[nodiscard]] std::vector<content::ConnectionShare> ReadConnectionUse(ServerConnection& connection);

}  // namespace ferrowind::postgres
