#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::content {

/// How many of the server's connections some of its logins have open.
struct ConnectionShare {
  /// A role of calendar databases, whose members they are; "others"; or "all".
  std::string whose;
  std::int64_t connections = 0;
  /// How many they can have open at once; nothing when one of them alone can take all that there are.
  std::optional<std::int64_t> limit;
  /// The logins that have no limit of their own, with commas between.
  std::string without_limit;
};

/// What a calendar database is and how much it holds.
struct DatabaseStatus {
  std::int64_t schema_version = 0;
  /// The product's name, and the version of the library or of the server.
  std::string engine;
  std::string engine_version;
  std::int64_t currencies = 0;
  /// All of them, the built-in and the removed ones too.
  std::int64_t rules = 0;
  std::int64_t removed_rules = 0;
  std::int64_t calendars = 0;
  std::int64_t days = 0;
  /// Nothing when the database's schema is of a version that has no history.
  std::optional<std::int64_t> history_entries;
  /// Each year that has calendars, ascending, with their number.
  std::vector<std::pair<std::int32_t, std::int64_t>> calendars_by_year;
  /// Operators, readers, all others, and at last all together; empty for a file.
  std::vector<ConnectionShare> connections;
};

/// What is to be done about a schema version `found` that is not this program's, `expected`, in a sentence
/// without a full stop; nothing when it is. `name` is what sentences call the database.
[[nodiscard]] std::optional<std::string> OtherSchemaVersion(const std::string& name, std::int64_t found,
                                                            std::int64_t expected);

/// A failure unless the schema version `found` in the database that failures call `name` is this program's.
void RequireSchemaVersion(const std::string& name, std::int64_t found, std::int64_t expected);

/// Puts the counts into `status`. `ask` runs a query and gives its rows; all of them on one state of the
/// database.
void CountContent(const std::function<std::shared_ptr<platform::RecordSet>(const std::string& query)>& ask,
                  bool has_history, DatabaseStatus& status);

}  // namespace ferrowind::content
