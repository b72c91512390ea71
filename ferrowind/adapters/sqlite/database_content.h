#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::sqlite {

/// The content of the calendar database at `path` as it is now, whatever others write meanwhile; nobody is
/// kept from writing. A file that cannot be read or is no calendar database is a `platform::Failure`, and so
/// is one whose schema is of another version than this program's. Reading fails soon after `is_stopped` has
/// become true, which is asked now and then, however long a statement takes.
[[nodiscard]] std::unique_ptr<content::Source> OpenContent(const std::string& path,
                                                           const std::function<bool()>& is_stopped = {});

/// Calls `fill` with the calendar database at `path`, which is created without rules and calendars, as
/// `CreateDatabase` does it, when there is no file or an empty one. What `fill` wrote is there for others
/// when it has returned, all of it at once; when it throws, the database is as it was or not there.
/// `is_stopped` as `OpenContent` takes it.
void FillDatabase(const std::string& path, const std::function<void(content::Target& target)>& fill,
                  const std::function<bool()>& is_stopped = {});

/// Calls `work` with an engine through which it may call procedures of the calendar database at `path`,
/// whatever connection string that engine is given, and only until `work` returns. All of it is one
/// transaction, which keeps other writers out: when `work` throws, nothing is done. A file that cannot be
/// read or is no calendar database is a `platform::Failure`.
void ChangeInOneTransaction(const std::string& path,
                            const std::function<void(std::shared_ptr<platform::Engine> engine)>& work);

/// What the calendar database at `path` is and holds, whatever the version of its schema. A file that cannot
/// be read or is no calendar database is a `platform::Failure`.
[[nodiscard]] content::DatabaseStatus ReadStatus(const std::string& path);

}  // namespace ferrowind::sqlite
