#include <chrono>
#include <cstdio>
#include <exception>
#include <memory>

#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/business_days/value_dates.h"
#include "ferrowind/loading/day_loader.h"
#include "ferrowind/platform/database/engine_registry.h"

using namespace std::chrono_literals;

int main(int argc, char** argv) try {
  if (argc != 2) return 2;
  ferrowind::platform::EngineRegistry engines;
  engines.Register("sqlite", std::make_shared<ferrowind::sqlite::Engine>());
  const ferrowind::loading::DayLoader loader(engines, argv[1]);
  const auto days = loader.Current();

  const ferrowind::business_days::ValueDates dates(ferrowind::business_days::ReadCurrencyPair("EUR/JPY"),
                                                   days->calendars, days->conventions);
  const std::chrono::year_month_day spot(dates.SpotDate(2026y / 4 / 30));
  std::printf("%04d-%02u-%02u\n", static_cast<int>(spot.year()), static_cast<unsigned>(spot.month()),
              static_cast<unsigned>(spot.day()));
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
