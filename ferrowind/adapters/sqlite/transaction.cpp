#include "ferrowind/adapters/sqlite/transaction.h"

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/write_ahead_log.h"

namespace ferrowind::sqlite {

Transaction::Transaction(DatabaseHandle& database, Kind kind) : database_(database) {
  if (kind == Kind::kWriting) {
    // What is committed must survive a power cut, whatever this SQLite was built to do by default.
    database_.Execute("PRAGMA synchronous = FULL");
    RequireWriteAheadLog(database_);
    database_.Execute("BEGIN IMMEDIATE");
  } else {
    database_.Execute("BEGIN");
  }
}

Transaction::~Transaction() {
  // SQLite itself has undone it after some errors, as after a full disk.
  if (sqlite3_get_autocommit(database_.Get()) == 0) {
    sqlite3_exec(database_.Get(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

void Transaction::Commit() { database_.Execute("COMMIT"); }

}  // namespace ferrowind::sqlite
