#include "host/admin/database_content.h"

#include "ferrowind/adapters/postgres/database_content.h"
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

void RunWithCalendars(const platform::EngineRegistry& engines, const std::string& url,
                      const std::function<void()>& work) {
  try {
    RunWithDatabase(engines, url, work);
  } catch (const platform::Failure& failure) {
    const bool is_reached = !IsOnServer(engines, url) || !postgres::IsOfConnection(failure);
    if (is_reached) RequireThisVersion(engines, url);
    throw;
  }
}

content::DatabaseStatus ReadStatus(const platform::EngineRegistry& engines, const std::string& url) {
  return IsOnServer(engines, url) ? postgres::ReadStatus(url) : sqlite::ReadStatus(sqlite::PathIn(url));
}

}  // namespace ferrowind::host
