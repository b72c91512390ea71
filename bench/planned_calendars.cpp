#include "bench/planned_calendars.h"

#include <memory>

#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "host/session/procedure_session.h"

namespace ferrowind::bench {

void RunWithFile(const std::string& path, const std::function<void()>& work) {
  platform::EngineRegistry engines;
  engines.Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>());
  host::RunWithDatabase(engines, std::string(sqlite::Engine::kScheme) + ":" + path, work);
}

void MakePlannedCalendars(int first_year, int last_year) {
  const auto currencies = planning::CurrencyList::Load();
  for (const auto& delivered : host::DeliveredBooks()) {
    planning::StoreBook(currencies.Named(delivered.name).id, delivered.name, "", delivered.book);
  }
  const planning::YearPlanner planner(host::DeliveredDateTables());
  for (const auto* const currency : planner.WithBooks()) {
    for (int year = first_year; year <= last_year; ++year) {
      planner.Prepare(*currency, year)->Apply(almanac::ExceptionHandling::kOverwrite);
    }
  }
}

}  // namespace ferrowind::bench
