#include "ferrowind/adapters/sqlite/connection_guard.h"

#include <utility>

#include "ferrowind/adapters/sqlite/text_functions.h"

namespace ferrowind::sqlite {
namespace {

/// Longer texts are refused rather than taken into memory. A call takes 1 MB at most, of which its entry in
/// the history is a few times as much.
constexpr int kMostBytesOfACell = 16 * 1024 * 1024;

/// Of which the delivered ones need a small part.
constexpr int kMostBytesOfAStatement = 1024 * 1024;
constexpr int kMostTriggersInEachOther = 10;

}  // namespace

int GuardConnection(sqlite3* database) noexcept {
  constexpr std::pair<int, int> kSwitches[] = {{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                               {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                               {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0}};
  for (const auto& [what, value] : kSwitches) {
    int is_on = 0;
    const int code = sqlite3_db_config(database, what, value, &is_on);
    if (code != SQLITE_OK) return code;
  }
  sqlite3_limit(database, SQLITE_LIMIT_LENGTH, kMostBytesOfACell);
  sqlite3_limit(database, SQLITE_LIMIT_SQL_LENGTH, kMostBytesOfAStatement);
  sqlite3_limit(database, SQLITE_LIMIT_TRIGGER_DEPTH, kMostTriggersInEachOther);
  sqlite3_limit(database, SQLITE_LIMIT_ATTACHED, 0);
  return ReplaceSlowTextFunctions(database);
}

}  // namespace ferrowind::sqlite
