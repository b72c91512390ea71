#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "tests/contract/database/database_under_test.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {

/// A place that a copy of a calendar database comes from or goes to; nothing is there at first. Calls and
/// copies log in as the administrator.
class CopyEnd : public DatabaseUnderTest {
 public:
  /// Makes the calendar database, without rules and calendars.
  virtual void Create() = 0;
  /// Runs SQL from outside; the tables' names are known.
  virtual void Execute(const std::string& sql) = 0;
  /// Makes every row that is inserted into CldDay another one. Returns a part of what a copy says of it.
  [[nodiscard]] virtual std::string SpoilDays() = 0;
  /// Takes away what `SpoilDays` has put there.
  virtual void LeaveDaysAlone() = 0;
  /// Takes the table of the history away, which the first version did not have.
  virtual void TakeHistoryAway() = 0;
  /// Puts the schema's version to another number.
  virtual void SetSchemaVersion(int version) = 0;
  /// Whether there still is nothing.
  [[nodiscard]] virtual bool IsVacant() = 0;
  /// Another way to name the same place.
  [[nodiscard]] virtual std::string OtherConnectionString() = 0;
  /// Whether the database finds itself sound.
  [[nodiscard]] virtual bool IsSound() = 0;
};

class FileEnd : public CopyEnd {
 public:
  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override { return "sqlite:" + Path(); }
  void Create() override;
  void Execute(const std::string& sql) override;
  [[nodiscard]] std::string SpoilDays() override;
  void LeaveDaysAlone() override;
  void TakeHistoryAway() override;
  void SetSchemaVersion(int version) override;
  [[nodiscard]] bool IsVacant() override;
  [[nodiscard]] std::string OtherConnectionString() override;
  [[nodiscard]] bool IsSound() override;

 private:
  [[nodiscard]] std::string Path() const { return folder_.Path() + "/calendars.db"; }

  TemporaryFolder folder_;
  sqlite::Engine engine_;
};

class ServerEnd : public CopyEnd {
 public:
  ServerEnd();
  ServerEnd(const ServerEnd&) = delete;
  ServerEnd& operator=(const ServerEnd&) = delete;
  ~ServerEnd() override;

  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override;
  void Create() override;
  void Execute(const std::string& sql) override;
  [[nodiscard]] std::string SpoilDays() override;
  void LeaveDaysAlone() override;
  void TakeHistoryAway() override;
  void SetSchemaVersion(int version) override;
  [[nodiscard]] bool IsVacant() override;
  [[nodiscard]] std::string OtherConnectionString() override;
  [[nodiscard]] bool IsSound() override;

 private:
  std::string name_;
  postgres::Engine engine_;
};

}  // namespace ferrowind::contract
