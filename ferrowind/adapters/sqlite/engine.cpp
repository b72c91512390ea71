#include "ferrowind/adapters/sqlite/engine.h"

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine_connection.h"
#include "ferrowind/adapters/sqlite/file_watch.h"
#include "ferrowind/adapters/sqlite/result_reader.h"
#include "ferrowind/adapters/sqlite/schema_guard.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/statement_limit.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/database/connection_scheme.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {

std::unique_ptr<platform::Connection> Engine::Connect(const std::string& connection_string) {
  return platform::WithFailuresOnly([&]() -> std::unique_ptr<platform::Connection> {
    return std::make_unique<EngineConnection>(Open(connection_string), longest_call_);
  });
}

std::shared_ptr<platform::RecordSet> Engine::ReadDictionary(const std::string& connection_string,
                                                            const std::string& name) {
  return platform::WithFailuresOnly([&] {
    if (platform::CompareIgnoringCase(name, "Ccy") != 0) {
      throw platform::Failure(platform::failure_number::kInvalidArgument, "There is no dictionary " + name);
    }
    DatabaseHandle database = Open(connection_string);
    const StatementLimit limit(database, longest_call_);
    const Transaction transaction(database, Transaction::Kind::kReading);
    RequireCalendarDatabase(database);
    Statement currencies(database, "SELECT CcyID, Ccy, CcyType, Name FROM DicCcy ORDER BY Ccy");
    return ReadRecordSet(currencies);
  });
}

std::unique_ptr<platform::ChangeWatch> Engine::Watch(const std::string& connection_string) {
  return platform::WithFailuresOnly(
      [&] { return std::make_unique<FileWatch>(AbsolutePath(PathIn(connection_string))); });
}

DatabaseHandle Engine::Open(const std::string& connection_string) const {
  DatabaseHandle database(PathIn(connection_string), busy_timeout_);
  if (budget_) database.WaitWithin(budget_);
  return database;
}

std::string PathIn(const std::string& connection_string) {
  const auto path = platform::BehindScheme(connection_string, Engine::kScheme);
  if (!path) {
    throw platform::Failure(
        platform::failure_number::kInvalidArgument,
        "The connection string of a database file begins with " + std::string(Engine::kScheme) + ":");
  }
  return std::string(*path);
}

}  // namespace ferrowind::sqlite
