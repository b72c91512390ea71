#pragma once

#include <optional>
#include <string>

namespace ferrowind::postgres {

/// The connection string with "***" for every password in it, as libpq finds them, wherever and however they
/// are written; otherwise with the same settings, and unchanged when it holds none. One that is not
/// understood (connection_uri.h) is "postgresql://***": any part of it may be a password.
[[nodiscard]] std::string WithoutPasswords(const std::string& uri);

/// The names of a database and of the server that it is on; either is empty where the connection string
/// leaves it to libpq, the server's also where it is this computer.
struct ServerDatabase {
  std::string server;
  std::string name;
};

/// Nothing for a connection string that is not understood.
[[nodiscard]] std::optional<ServerDatabase> ServerDatabaseOf(const std::string& uri);

}  // namespace ferrowind::postgres
