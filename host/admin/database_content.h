#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/platform/database/engine_registry.h"

/// What the engines offer of the same kind, by the URL of the database. A URL of no engine in `engines` is a
/// `platform::Failure`, as is whatever the engine cannot do.
namespace ferrowind::host {

/// The content of the database as it is now, whatever others write meanwhile. It is read no longer than until
/// `is_stopped` says so, and then is a failure.
[[nodiscard]] std::unique_ptr<content::Source> OpenContent(const platform::EngineRegistry& engines,
                                                           const std::string& url,
                                                           const std::function<bool()>& is_stopped = {});

/// Calls `fill` with the database, which is created without rules and calendars where there is none. What
/// `fill` wrote is there when it has returned; when it throws, the database is as it was, but for a
/// `content::DoubtfulOutcome`. `is_stopped` as for `OpenContent`.
void FillDatabase(const platform::EngineRegistry& engines, const std::string& url,
                  const std::function<void(content::Target& target)>& fill,
                  const std::function<bool()>& is_stopped = {});

/// As `RunWithDatabase`. When `work` fails on a database of another schema version, which lacks procedures or
/// has others, the failure says which version it has and that it is to be upgraded first.
void RunWithCalendars(const platform::EngineRegistry& engines, const std::string& url,
                      const std::function<void()>& work);

/// As `RunWithCalendars`, for what only an administrator may do: when `work` fails for somebody else, the
/// failure says that.
void AdministerCalendars(const platform::EngineRegistry& engines, const std::string& url,
                         const std::function<void()>& work);

/// As `AdministerCalendars`, with all calls of `work` in one transaction: when it throws, nothing is done.
/// Only when a server is lost while it commits, that is not known, which is a `content::DoubtfulOutcome`.
void AdministerInOneTransaction(const platform::EngineRegistry& engines, const std::string& url,
                                const std::function<void()>& work);

[[nodiscard]] content::DatabaseStatus ReadStatus(const platform::EngineRegistry& engines,
                                                 const std::string& url);

}  // namespace ferrowind::host
