#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::postgres {

/// The content of the calendar database that `connection_string` names as it is now, whatever others write
/// meanwhile; nobody is kept from writing, but upgrades wait. The login must be one that could create the
/// database. A database that cannot be read or is no calendar database is a `platform::Failure`, and so is
/// one whose schema is of another version than this program's. While the server is waited for, `is_stopped`
/// is asked again and again; when it says so, the server is told to stop, and that is a failure, too.
[[nodiscard]] std::unique_ptr<content::Source> OpenContent(const std::string& connection_string,
                                                           const std::function<bool()>& is_stopped = {});

/// Calls `fill` with the calendar database that `connection_string` names, which is made of it without rules
/// and calendars, as `CreateDatabaseObjects` does it, when it has no schema `ferrowind`. The login must be
/// one that could create it. All of it is one transaction: what `fill` wrote is there for others when it has
/// returned, and when it throws, everything is as it was. Only when the connection is lost while all of it is
/// committed, that is not known, and the failure a `content::DoubtfulOutcome`. The target that keeps others
/// out of an existing database keeps readers out, too; when somebody does not let go of its tables within 5
/// seconds, the failure says who (table_locks.h). The identifiers that the server gives out continue behind
/// those that were written. `is_stopped` as for `OpenContent`.
void FillDatabase(const std::string& connection_string,
                  const std::function<void(content::Target& target)>& fill,
                  const std::function<bool()>& is_stopped = {});

/// Calls `work` with an engine through which it may call procedures of the calendar database, whatever
/// connection string that engine is given, and only until `work` returns. All of it is one transaction: when
/// `work` throws, nothing is done. Only when the connection is lost while it is committed, that is not known,
/// and the failure a `content::DoubtfulOutcome`. A server that cannot be reached is a `platform::Failure`.
void ChangeInOneTransaction(const std::string& connection_string,
                            const std::function<void(std::shared_ptr<platform::Engine> engine)>& work);

/// What the calendar database is and holds, whatever the version of its schema. The login must be one that
/// could create it. A database that cannot be read or is no calendar database is a `platform::Failure`.
[[nodiscard]] content::DatabaseStatus ReadStatus(const std::string& connection_string);

}  // namespace ferrowind::postgres
