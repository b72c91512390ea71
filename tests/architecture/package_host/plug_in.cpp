// What crosses the edges of the libraries: calls, failures by their type, and objects whose kind is asked
// for.

#include <chrono>
#include <cstdio>
#include <memory>
#include <string_view>

#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/loading/day_loader.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/version.h"

namespace {

using ferrowind::platform::Failure;

bool Fails(const char* what, bool as_expected) {
  if (!as_expected) std::fprintf(stderr, "%s\n", what);
  return !as_expected;
}

/// Thrown by the library of SQLite, through the one of the component, to here.
bool FailureKeepsItsType(const ferrowind::platform::EngineRegistry& engines) {
  try {
    const ferrowind::loading::DayLoader loader(engines, "sqlite:/no/such/folder/calendars.db");
  } catch (const Failure& failure) {
    return std::string_view(failure.what()).find("/no/such/folder/calendars.db") != std::string_view::npos;
  }
  return false;
}

bool DerivedFailureKeepsItsType() {
  using namespace std::chrono_literals;
  const ferrowind::business_days::BusinessCalendar nothing("EUR", {});
  try {
    (void)nothing.IsBusinessDay(std::chrono::sys_days(2028y / 4 / 14));
  } catch (const ferrowind::business_days::NotPrepared&) {
    return true;
  }
  return false;
}

bool ObjectKeepsItsKind(const ferrowind::platform::EngineRegistry& engines) {
  const std::shared_ptr<ferrowind::platform::OutsideObject> object =
      std::make_shared<ferrowind::DesktopDictionary>(engines, "sqlite:calendars.db");
  return dynamic_cast<ferrowind::platform::Dictionary*>(object.get()) != nullptr;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int AskPlugIn() {
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
  const auto version = ferrowind::Calendar::Version();
  bool fails =
      Fails("the component has another title", version[0] == ferrowind::platform::Value("Ferrowind"));
  fails |= Fails("the version header has no version", FERROWIND_VERSION_NUMBER >= 10210);
  fails |= Fails("the failure of the engine has lost its type", FailureKeepsItsType(engines));
  fails |= Fails("the failure of a calendar has lost its type", DerivedFailureKeepsItsType());
  fails |= Fails("the dictionary has lost its kind", ObjectKeepsItsKind(engines));
  return fails ? 1 : 0;
}
