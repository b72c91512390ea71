#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::contract {

/// The texts in the first column of the superuser's query.
[[nodiscard]] std::vector<std::string> AskAll(const std::string& database, const std::string& query);

/// Fails the test unless the server refuses `sql` for want of a right.
void ExpectRefused(postgres::ServerConnection& connection, const std::string& sql);

}  // namespace ferrowind::contract
