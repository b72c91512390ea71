#include "host/desktop/database_name.h"

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/postgres/shown_uri.h"
#include "ferrowind/adapters/services/trace_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/connection_scheme.h"

#include "host/desktop/worded.h"
#include "host/session/shown_connection.h"

namespace ferrowind::host {
namespace {

using platform::Phrase;

std::string OfFile(const std::string& path) {
  const std::string name = path.substr(path.find_last_of('/') + 1);
  return name.empty() ? path : name;
}

Phrase OfServer(const postgres::ServerDatabase& database) {
  const Phrase name = database.name.empty() ? Phrase::Of("The default database") : Phrase(database.name);
  const Phrase server = database.server.empty() ? Phrase::Of("this computer") : Phrase(database.server);
  return Phrase::Of("%1 on %2", {name, server});
}

}  // namespace

std::string DatabaseName(const std::string& connection_string, const platform::Words* words) {
  const auto path = platform::BehindScheme(connection_string, sqlite::Engine::kScheme);
  if (path && !path->empty()) return OfFile(std::string(*path));
  const auto database = postgres::ServerDatabaseOf(connection_string);
  return database ? OnOneLine(Worded(words, OfServer(*database))) : ShownConnection(connection_string);
}

}  // namespace ferrowind::host
