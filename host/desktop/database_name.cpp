#include "host/desktop/database_name.h"

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/postgres/shown_uri.h"
#include "ferrowind/adapters/services/trace_file.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "host/session/shown_connection.h"

namespace ferrowind::host {
namespace {

std::string OfFile(const std::string& path) {
  const std::string name = path.substr(path.find_last_of('/') + 1);
  return name.empty() ? path : name;
}

std::string OfServer(const postgres::ServerDatabase& database) {
  return OnOneLine((database.name.empty() ? "The default database" : database.name) + " on " +
                   (database.server.empty() ? "this computer" : database.server));
}

}  // namespace

std::string DatabaseName(const std::string& connection_string) {
  const std::string file = std::string(sqlite::Engine::kScheme) + ":";
  if (connection_string.starts_with(file) && connection_string.size() > file.size()) {
    return OfFile(connection_string.substr(file.size()));
  }
  const auto database = postgres::ServerDatabaseOf(connection_string);
  return database ? OfServer(*database) : ShownConnection(connection_string);
}

}  // namespace ferrowind::host
