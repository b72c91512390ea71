#include "ferrowind/adapters/sqlite/database_handle.h"

#include <filesystem>
#include <utility>

#include "ferrowind/adapters/sqlite/connection_guard.h"
#include "ferrowind/adapters/sqlite/name_collation.h"
#include "ferrowind/adapters/sqlite/sql_functions.h"
#include "ferrowind/adapters/sqlite/sqlite_failure.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {
namespace {

/// What SQL means on a connection. Takes effect without looking into the file.
int Configure(sqlite3* database) {
  constexpr std::pair<int, int> kSwitches[] = {
      {SQLITE_DBCONFIG_ENABLE_FKEY, 1},
      // A name in double quotes that is no column shall be an error, not a text.
      {SQLITE_DBCONFIG_DQS_DML, 0},
      {SQLITE_DBCONFIG_DQS_DDL, 0},
  };
  for (const auto& [what, value] : kSwitches) {
    int is_on = 0;
    const int code = sqlite3_db_config(database, what, value, &is_on);
    if (code != SQLITE_OK) return code;
  }
  const int code = AddNameCollation(database);
  return code == SQLITE_OK ? AddSqlFunctions(database) : code;
}

/// Asked by SQLite whenever another program holds what a statement needs. 0 to give up.
int WaitForOthers(void* budget, int attempts) noexcept {
  return static_cast<WaitBudget*>(budget)->WaitAMoment(attempts) ? 1 : 0;
}

}  // namespace

std::string AbsolutePath(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            path.empty() ? "The path of the database is empty"
                                         : "The path of the database holds the character NUL");
  }
  std::error_code error;
  const auto absolute = std::filesystem::absolute(platform::FilePath(path), error);
  if (error)
    throw platform::Failure(error.value(), "The path " + path + " is not usable: " + error.message());
  return platform::FileName(absolute);
}

DatabaseHandle::DatabaseHandle(const std::string& path, std::chrono::milliseconds busy_timeout)
    : path_(AbsolutePath(path)) {
  // An absolute path is never taken for ":memory:" or a URI with options of its own.
  Open(path_.c_str(), SQLITE_OPEN_READWRITE, busy_timeout);
}

DatabaseHandle DatabaseHandle::InMemory() {
  DatabaseHandle handle;
  handle.path_ = "in memory";
  handle.Open(":memory:", SQLITE_OPEN_READWRITE, kBusyTimeout);
  return handle;
}

void DatabaseHandle::Open(const char* name, int flags, std::chrono::milliseconds busy_timeout) {
  sqlite3* database = nullptr;
  const int code =
      sqlite3_open_v2(name, &database, flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, files_.Name());
  database_.reset(database);
  if (code != SQLITE_OK) throw LastFailure();
  if (GuardConnection(database) != SQLITE_OK || Configure(database) != SQLITE_OK ||
      sqlite3_busy_timeout(database, static_cast<int>(busy_timeout.count())) != SQLITE_OK) {
    throw LastFailure();
  }
}

void DatabaseHandle::WaitWithin(std::shared_ptr<WaitBudget> budget) {
  budget_ = std::move(budget);
  if (sqlite3_busy_handler(Get(), WaitForOthers, budget_.get()) != SQLITE_OK) throw LastFailure();
}

void DatabaseHandle::Execute(const char* sql) {
  if (sqlite3_exec(Get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) throw LastFailure();
}

platform::Failure DatabaseHandle::LastFailure() const { return FailureOf(Get(), path_); }

}  // namespace ferrowind::sqlite
