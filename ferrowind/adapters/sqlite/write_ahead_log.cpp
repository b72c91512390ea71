#include "ferrowind/adapters/sqlite/write_ahead_log.h"

#include <string>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

bool IsInMode(const DatabaseHandle& database, const char* pragma, const char* mode) {
  Statement ask(database, pragma);
  if (!ask.Step()) return false;
  const bool is_in_mode = ask.Text(0) == mode;
  // The answer comes before the file is written; whether that could be, only the end of the statement tells.
  while (ask.Step()) continue;
  return is_in_mode;
}

}  // namespace

void RequireWriteAheadLog(DatabaseHandle& database) {
  if (*sqlite3_db_filename(database.Get(), "main") == '\0') return;
  if (IsInMode(database, "PRAGMA journal_mode", "wal")) return;
  // All that is written then are the marks and counters in the beginning of the first page. Whichever of
  // them a power cut lets through, the file is the same database with a log or without one.
  database.Execute("PRAGMA journal_mode = MEMORY");
  if (IsInMode(database, "PRAGMA journal_mode = WAL", "wal")) return;
  throw platform::Failure(SQLITE_CANTOPEN, "The folder of the database " + database.Path() +
                                               " is on a file system that databases cannot be shared on");
}

}  // namespace ferrowind::sqlite
