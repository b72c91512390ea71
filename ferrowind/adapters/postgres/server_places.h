#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/connection_uri.h"

namespace ferrowind::postgres {

/// One server that a connection string names.
struct ServerPlace {
  /// Its host and port, "db.example:5432"; empty where libpq alone knows where the server is.
  std::string name;
  /// What libpq is told to connect there and nowhere else.
  ConnectionSettings settings;
};

/// The servers in the order in which libpq would try them; one stands there twice where the URI prefers a
/// standby and takes any server else. One place alone where the URI names no host, or names hosts, addresses
/// and ports of different numbers, of which libpq says so.
[[nodiscard]] std::vector<ServerPlace> PlacesOf(const ConnectionUri& uri);

}  // namespace ferrowind::postgres
