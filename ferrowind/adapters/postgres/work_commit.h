#pragma once

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// Commits the transaction that is open on `connection`. When the connection is lost before the server has
/// answered, it may or may not have committed; when its standby did not confirm, it has: both are a
/// `content::DoubtfulOutcome` that says so.
void CommitWork(ServerConnection& connection);

}  // namespace ferrowind::postgres
