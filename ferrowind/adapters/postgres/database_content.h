#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/content/database_status.h"

namespace ferrowind::postgres {

/// The content of the calendar database that `connection_string` names as it is now, whatever others write
/// meanwhile; nobody is kept from writing. The login must be one that could create the database. A database
/// that cannot be read or is no calendar database is a `platform::Failure`, and so is one whose schema is of
/// another version than this program's.
[[nodiscard]] std::unique_ptr<content::Source> OpenContent(const std::string& connection_string);

/// Calls `fill` with the calendar database that `connection_string` names, which is made of it without rules
/// and calendars, as `CreateDatabaseObjects` does it, when it has no schema `ferrowind`. The login must be
/// one that could create it. All of it is one transaction, in which nobody else can write into an existing
/// one: what `fill` wrote is there for others when it has returned, and when it throws, everything is as it
/// was. The identifiers that the server gives out continue behind those that were written.
void FillDatabase(const std::string& connection_string,
                  const std::function<void(content::Target& target)>& fill);

/// What the calendar database is and holds, whatever the version of its schema. The login must be one that
/// could create it. A database that cannot be read or is no calendar database is a `platform::Failure`.
[[nodiscard]] content::DatabaseStatus ReadStatus(const std::string& connection_string);

}  // namespace ferrowind::postgres
