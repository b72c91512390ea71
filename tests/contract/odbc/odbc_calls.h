#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/adapters/odbc/engine.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/odbc/odbc_database.h"

namespace ferrowind::contract {

/// What a connection by `connection_string` fails with; empty when it does not.
inline std::string ConnectFailureOf(const std::string& connection_string) {
  odbc::Engine engine;
  return FailureTextOf([&] { static_cast<void>(engine.Connect(connection_string)); });
}

inline int CreateYear(platform::Connection& connection, std::int32_t year) {
  return connection.Call("CldIUMain", {platform::Value(978), platform::Value(year), {}, {}, {}, {}, {}})
      .return_value;
}

inline int CreateYear(OdbcDatabase& database, std::int32_t year) {
  return CreateYear(*database.Engine().Connect(database.ConnectionString()), year);
}

}  // namespace ferrowind::contract
