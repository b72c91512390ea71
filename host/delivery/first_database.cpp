#include "host/delivery/first_database.h"

#include <functional>
#include <memory>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

/// Creates the database with the engine's own means; `fill` is called with a connection string of the
/// unfinished database, and with the engines that reach it.
using Fill =
    std::function<void(const platform::EngineRegistry& engines, const std::string& connection_string)>;

void Create(const platform::EngineRegistry& engines, const std::string& connection_string, const Fill& fill,
            const std::function<bool()>& is_stopped) {
  if (postgres::IsConnectionString(connection_string)) {
    return postgres::CreateDatabaseObjects(
        connection_string,
        [&](const std::shared_ptr<platform::Engine>& unfinished) {
          platform::EngineRegistry engines_of_unfinished;
          engines_of_unfinished.Register(postgres::Engine::kScheme, unfinished);
          fill(engines_of_unfinished, std::string(postgres::Engine::kScheme) + ":");
        },
        is_stopped);
  }
  sqlite::CreateDatabase(sqlite::PathIn(connection_string), [&](const std::string& unfinished) {
    // As long as one connection is open, those of the calls need not write the log
    // into the file when they close.
    const auto open = engines.EngineFor(unfinished).Connect(unfinished);
    (void)open->DescribeProcedure("CldAllInfo");
    fill(engines, unfinished);
  });
}

}  // namespace

std::optional<Delivery> CreateFirstDatabase(const platform::EngineRegistry& engines,
                                            const std::string& connection_string,
                                            const platform::Clock& clock, const FirstContent& content,
                                            const DeliveryObserver& observe,
                                            const std::function<bool()>& is_stopped) {
  // Says that there is no such engine, where an adapter can only say that it is not its own.
  (void)engines.EngineFor(connection_string);
  std::optional<Delivery> delivery;
  const int first_year = content.first_year.value_or(clock.Today().Year());
  Create(
      engines, connection_string,
      [&](const platform::EngineRegistry& engines_of_unfinished, const std::string& unfinished) {
        if (content.is_empty) return;
        RunWithDatabase(engines_of_unfinished, unfinished, [&] { delivery = Deliver(first_year, observe); });
      },
      is_stopped);
  return delivery;
}

}  // namespace ferrowind::host
