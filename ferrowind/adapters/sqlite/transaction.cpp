#include "ferrowind/adapters/sqlite/transaction.h"

#include <sqlite3.h>

namespace ferrowind::sqlite {

Transaction::Transaction(DatabaseHandle& database, Kind kind) : database_(database) {
  if (kind == Kind::kWriting) {
    // What is committed must survive a power cut, whatever this SQLite was built to do by default. A file
    // that another tool has taken off the log gets it back, so that there is never a journal beside it.
    database_.Execute("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; BEGIN IMMEDIATE");
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
