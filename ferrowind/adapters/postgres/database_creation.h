#pragma once

#include <functional>

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// What `CreateDatabaseObjects` does, on a connection without an open transaction. `fill`, when there is one,
/// works on the same connection, in the creation's transaction and as the owner. The caller commits.
void CreateObjects(ServerConnection& connection, const std::function<void()>& fill);

}  // namespace ferrowind::postgres
