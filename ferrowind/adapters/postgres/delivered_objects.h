#pragma once

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

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
