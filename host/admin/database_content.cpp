#include "host/admin/database_content.h"

#include "ferrowind/adapters/postgres/database_content.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/values/failure.h"

#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

/// Says that there is no such engine, where an adapter can only say that it is not its own.
bool IsOnServer(const platform::EngineRegistry& engines, const std::string& url) {
  (void)engines.EngineFor(url);
  return postgres::IsConnectionString(url);
}

/// A failure when the database is of another schema version. One that cannot be read by this user, who may be
/// allowed to call procedures and nothing else, is none.
void RequireThisVersion(const platform::EngineRegistry& engines, const std::string& url) {
  try {
    (void)ReadStatus(engines, url);
  } catch (const platform::Failure&) {
    return;
  }
  (void)OpenContent(engines, url);
}

}  // namespace

std::unique_ptr<content::Source> OpenContent(const platform::EngineRegistry& engines, const std::string& url,
                                             const std::function<bool()>& is_stopped) {
  if (IsOnServer(engines, url)) return postgres::OpenContent(url, is_stopped);
  return sqlite::OpenContent(sqlite::PathIn(url), is_stopped);
}

void FillDatabase(const platform::EngineRegistry& engines, const std::string& url,
                  const std::function<void(content::Target& target)>& fill,
                  const std::function<bool()>& is_stopped) {
  if (IsOnServer(engines, url)) return postgres::FillDatabase(url, fill, is_stopped);
  sqlite::FillDatabase(sqlite::PathIn(url), fill, is_stopped);
}

namespace {

/// Runs `run`, and tells of a wrong version where it fails because of that.
void WithVersionTold(const platform::EngineRegistry& engines, const std::string& url,
                     const std::function<void()>& run) {
  try {
    run();
  } catch (const platform::Failure& failure) {
    const bool is_reached = !IsOnServer(engines, url) || !postgres::IsOfConnection(failure);
    if (is_reached) RequireThisVersion(engines, url);
    throw;
  }
}

/// Runs `run`, and says that it takes an administrator where it fails for somebody else.
void WithAdministratorTold(const platform::EngineRegistry& engines, const std::string& url,
                           const std::function<void()>& run) {
  try {
    run();
  } catch (const platform::Failure& failure) {
    if (IsOnServer(engines, url) && !postgres::IsOfConnection(failure)) postgres::RequireAdministratorOf(url);
    throw;
  }
}

}  // namespace

void RunWithCalendars(const platform::EngineRegistry& engines, const std::string& url,
                      const std::function<void()>& work) {
  WithVersionTold(engines, url, [&] { RunWithDatabase(engines, url, work); });
}

void AdministerCalendars(const platform::EngineRegistry& engines, const std::string& url,
                         const std::function<void()>& work) {
  WithAdministratorTold(engines, url, [&] { RunWithCalendars(engines, url, work); });
}

void AdministerInOneTransaction(const platform::EngineRegistry& engines, const std::string& url,
                                const std::function<void()>& work) {
  const auto run = [&] {
    const bool is_on_server = IsOnServer(engines, url);
    const auto change = [&](const std::shared_ptr<platform::Engine>& engine) {
      platform::EngineRegistry joined;
      joined.Register(is_on_server ? postgres::Engine::kScheme : sqlite::Engine::kScheme, engine);
      RunWithDatabase(joined, is_on_server ? std::string(postgres::Engine::kScheme) + ":" : url, work);
    };
    if (is_on_server) return postgres::ChangeInOneTransaction(url, change);
    sqlite::ChangeInOneTransaction(sqlite::PathIn(url), change);
  };
  WithAdministratorTold(engines, url, [&] { WithVersionTold(engines, url, run); });
}

content::DatabaseStatus ReadStatus(const platform::EngineRegistry& engines, const std::string& url) {
  return IsOnServer(engines, url) ? postgres::ReadStatus(url) : sqlite::ReadStatus(sqlite::PathIn(url));
}

}  // namespace ferrowind::host
