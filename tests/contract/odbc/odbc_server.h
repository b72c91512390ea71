#pragma once

#include <string>

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {

/// The server of the test (postgres_server.h), as ODBC is told of it.
namespace odbc_server {

/// The driver as the machine's own list has it.
inline constexpr const char* kDriver = "PostgreSQL Unicode";

/// The connection string of `user`, without any rest behind it.
[[nodiscard]] std::string ConnectionString(const std::string& user, const std::string& password,
                                           const std::string& database,
                                           const std::string& port = postgres_server::Port());
[[nodiscard]] std::string SuperuserConnectionString(const std::string& database);
[[nodiscard]] std::string OperatorConnectionString(const std::string& database,
                                                   const std::string& port = postgres_server::Port());

}  // namespace odbc_server
}  // namespace ferrowind::contract
