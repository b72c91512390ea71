#include "ferrowind/adapters/odbc/engine.h"

#include "ferrowind/adapters/odbc/connection_string.h"
#include "ferrowind/adapters/odbc/engine_connection.h"
#include "ferrowind/adapters/odbc/server_link.h"
#include "ferrowind/adapters/postgres_calls/dictionary_query.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::odbc {

std::unique_ptr<platform::Connection> Engine::Connect(const std::string& connection_string) {
  return platform::WithFailuresOnly([&]() -> std::unique_ptr<platform::Connection> {
    return std::make_unique<EngineConnection>(ConnectionString(connection_string));
  });
}

std::shared_ptr<platform::RecordSet> Engine::ReadDictionary(const std::string& connection_string,
                                                            const std::string& name) {
  return platform::WithFailuresOnly([&] {
    postgres::RequireDictionary(name);
    return ServerLink(ConnectionString(connection_string)).Query(postgres::kReadCurrencies);
  });
}

std::unique_ptr<platform::ChangeWatch> Engine::Watch(const std::string& connection_string) {
  return platform::WithFailuresOnly([&]() -> std::unique_ptr<platform::ChangeWatch> {
    // So that a text by which no database can be meant is a failure here as everywhere.
    static_cast<void>(ConnectionString(connection_string));
    return nullptr;
  });
}

}  // namespace ferrowind::odbc
