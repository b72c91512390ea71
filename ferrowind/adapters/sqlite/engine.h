#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include "ferrowind/adapters/sqlite/busy_timeout.h"
#include "ferrowind/adapters/sqlite/wait_budget.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/database/engine.h"

/// Calendar databases in SQLite files.
namespace ferrowind::sqlite {

class DatabaseHandle;

/// The engine of calendar databases that are SQLite files: connection strings "sqlite:PATH", PATH absolute or
/// relative to the current folder. The files are made by `CreateDatabase` (database_file.h).
///
/// Every connection is a new one. Failures carry SQLite's extended result code as their number, and name the
/// file.
class FERROWIND_EXPORT Engine : public platform::Engine {
 public:
  /// The scheme of its connection strings.
  static constexpr const char* kScheme = "sqlite";

  /// A call waits up to `busy_timeout` for another program to release the database, and fails when it takes
  /// longer than `longest_call`.
  explicit Engine(std::chrono::milliseconds busy_timeout = kBusyTimeout,
                  std::chrono::milliseconds longest_call = kLongestCall)
      : busy_timeout_(busy_timeout), longest_call_(longest_call) {}
  /// Calls wait for another program as long as `budget`, which is not null, has time for them all.
  explicit Engine(std::shared_ptr<WaitBudget> budget) : budget_(std::move(budget)) {}

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override;
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override;

 private:
  [[nodiscard]] DatabaseHandle Open(const std::string& connection_string) const;

  std::chrono::milliseconds busy_timeout_ = kBusyTimeout;
  std::chrono::milliseconds longest_call_ = kLongestCall;
  /// Null for the time-out.
  std::shared_ptr<WaitBudget> budget_;
};

/// The path in a connection string "sqlite:PATH"; another scheme is a failure.
[[nodiscard]] FERROWIND_EXPORT std::string PathIn(const std::string& connection_string);

}  // namespace ferrowind::sqlite
