#include "host/delivery/first_database.h"

#include <memory>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

void CreateDeliveredCalendars(const platform::EngineRegistry& engines, const std::string& connection_string,
                              const CreationObserver& observe) {
  RunWithDatabase(engines, connection_string, [&] { DeliveredCalendars::Embedded().Create(observe); });
}

void CreateOnServer(const std::string& connection_string, DatabaseContent content,
                    const CreationObserver& observe) {
  if (content == DatabaseContent::kEmpty) return postgres::CreateDatabaseObjects(connection_string, false);
  postgres::CreateDatabaseObjects(
      connection_string, true, [&](const std::shared_ptr<platform::Engine>& unfinished) {
        platform::EngineRegistry engines;
        engines.Register(postgres::Engine::kScheme, unfinished);
        CreateDeliveredCalendars(engines, std::string(postgres::Engine::kScheme) + ":", observe);
      });
}

}  // namespace

void CreateFirstDatabase(const platform::EngineRegistry& engines, const std::string& connection_string,
                         DatabaseContent content, const CreationObserver& observe) {
  // Says that there is no such engine, where an adapter can only say that it is not its own.
  (void)engines.EngineFor(connection_string);
  if (postgres::IsConnectionString(connection_string))
    return CreateOnServer(connection_string, content, observe);
  const std::string path = sqlite::PathIn(connection_string);
  if (content == DatabaseContent::kEmpty) return sqlite::CreateDatabase(path, false);
  sqlite::CreateDatabase(path, true, [&](const std::string& unfinished) {
    CreateDeliveredCalendars(engines, unfinished, observe);
  });
}

}  // namespace ferrowind::host
