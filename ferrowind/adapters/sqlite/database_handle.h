#pragma once

#include <chrono>
#include <memory>
#include <string>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/busy_timeout.h"
#include "ferrowind/adapters/sqlite/guarded_files.h"
#include "ferrowind/adapters/sqlite/wait_budget.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {

/// An open database file with the settings that every connection of this adapter has: foreign keys enforced,
/// the file protected against harmful SQL and harmful schemas, cells limited in size. Used by one thread;
/// closed when destroyed.
class DatabaseHandle {
 public:
  /// Opens the existing file at `path`, absolute or relative to the current folder; nothing is created. A
  /// path that is empty or holds a NUL, and a file that SQLite does not open, are failures; SQLite looks into
  /// the file only when it is first used. What lies beside it and is dangerous (files_beside.h) is refused
  /// then.
  explicit DatabaseHandle(const std::string& path, std::chrono::milliseconds busy_timeout = kBusyTimeout);
  /// A database in memory, empty.
  [[nodiscard]] static DatabaseHandle InMemory();

  /// The absolute path.
  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] sqlite3* Get() const { return database_.get(); }

  /// From now on the time that statements wait for other programs comes out of `budget`, which is not null.
  void WaitWithin(std::shared_ptr<WaitBudget> budget);

  /// Runs all the statements of `sql`, dropping their rows.
  void Execute(const char* sql);

  /// The failure for what SQLite reported last.
  [[nodiscard]] platform::Failure LastFailure() const;

 private:
  struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  };

  DatabaseHandle() = default;
  void Open(const char* name, int flags, std::chrono::milliseconds busy_timeout);

  std::string path_;
  /// What `database_` waits within; null for its time-out.
  std::shared_ptr<WaitBudget> budget_;
  GuardedFiles files_;
  std::unique_ptr<sqlite3, Closer> database_;
};

/// The absolute form of `path`; failures as `DatabaseHandle` documents them.
[[nodiscard]] std::string AbsolutePath(const std::string& path);

}  // namespace ferrowind::sqlite
