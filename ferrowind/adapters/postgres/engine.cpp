#include "ferrowind/adapters/postgres/engine.h"

#include "ferrowind/adapters/postgres/change_listener.h"
#include "ferrowind/adapters/postgres/dictionary_query.h"
#include "ferrowind/adapters/postgres/engine_connection.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::postgres {

std::unique_ptr<platform::Connection> Engine::Connect(const std::string& connection_string) {
  return platform::WithFailuresOnly([&]() -> std::unique_ptr<platform::Connection> {
    return std::make_unique<EngineConnection>(std::make_shared<ServerConnection>(connection_string),
                                              CallTransaction::kOwn);
  });
}

std::shared_ptr<platform::RecordSet> Engine::ReadDictionary(const std::string& connection_string,
                                                            const std::string& name) {
  return platform::WithFailuresOnly([&] {
    RequireDictionary(name);
    ServerConnection connection(connection_string);
    return ReadCurrencies(connection);
  });
}

std::unique_ptr<platform::ChangeWatch> Engine::Watch(const std::string& connection_string) {
  return platform::WithFailuresOnly([&] { return std::make_unique<ChangeListener>(connection_string); });
}

bool IsConnectionString(const std::string& text) {
  return text.starts_with(std::string(Engine::kScheme) + ":") ||
         text.starts_with(std::string(Engine::kShortScheme) + ":");
}

}  // namespace ferrowind::postgres
