#pragma once

#include <string_view>
#include <vector>

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// The scripts that create the schema `ferrowind` and everything in it, in the order in which they run.
[[nodiscard]] std::vector<std::string_view> DeliveredScripts();

/// Creates the schema `ferrowind` with its tables, routines and views, in the transaction that is open. The
/// roles exist; the schema does not. Everything behind runs as the owner, with the schema as its search path,
/// until the rights are given.
void CreateDeliveredSchema(ServerConnection& connection);

/// Puts this program's procedures, functions and triggers in the place of those that the schema has. Runs as
/// the owner, with the schema as its search path.
void ReplaceRoutines(ServerConnection& connection);

/// Gives the rights on the schema and on the database, and makes the connection's login act for itself again.
void GiveDeliveredRights(ServerConnection& connection);

}  // namespace ferrowind::postgres
