#include "host/business_days/day_source.h"

#include <utility>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

namespace ferrowind::host {
namespace {

/// There until the process ends: threads of it may still ask then.
const platform::EngineRegistry& Engines() {
  static const platform::EngineRegistry& engines = *[] {
    auto registry = std::make_unique<platform::EngineRegistry>();
    registry->Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>());
    const auto server = std::make_shared<postgres::Engine>();
    for (const char* scheme : {postgres::Engine::kScheme, postgres::Engine::kShortScheme}) {
      registry->Register(scheme, server);
    }
    return registry.release();
  }();
  return engines;
}

}  // namespace

DaySource::DaySource(const std::string& url)
    : loader_(std::make_unique<loading::DayLoader>(Engines(), url)) {}

DaySource::DaySource(loading::LoadedDays given)
    : given_(std::make_shared<const loading::LoadedDays>(std::move(given))) {}

std::shared_ptr<const loading::LoadedDays> DaySource::Current() const {
  return loader_ ? loader_->Current() : given_;
}

loading::DayChanges DaySource::Reload() { return loader_ ? loader_->Reload() : loading::DayChanges(); }

}  // namespace ferrowind::host
