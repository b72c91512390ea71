#pragma once

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// A failure unless the login has the rights of ferrowind_owner, which everything in a calendar database
/// belongs to. Without them each of its tables would be a failure of its own. Asked outside of a transaction,
/// it leaves what a later one sees alone.
void RequireAdministrator(ServerConnection& connection);

}  // namespace ferrowind::postgres
