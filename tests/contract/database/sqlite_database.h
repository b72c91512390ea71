#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/sqlite/engine.h"

#include "tests/contract/database/database_with_history.h"

namespace ferrowind::contract {

/// A folder of its own for one test, removed with all its files at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// The path of a file in it, as the system writes it.
  [[nodiscard]] std::string File(const std::string& name) const;

 private:
  std::string path_;
};

/// A new SQLite file without delivered rules.
class SqliteDatabase : public DatabaseWithHistoryUnderTest {
 public:
  SqliteDatabase();

  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override { return "sqlite:" + Path(); }
  void SetFirstDay(int first_day) override;
  void SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) override;
  [[nodiscard]] bool IsSound() override;
  [[nodiscard]] std::string UserName() override;

  [[nodiscard]] std::string Path() const { return folder_.File("calendars.db"); }
  /// Runs SQL as a program does that opens the file by itself.
  void Execute(const std::string& sql);
  /// Adds a procedure from its source, which makes the database no less sound.
  void AddProcedure(const std::string& source);

 private:
  TemporaryFolder folder_;
  sqlite::Engine engine_;
  std::vector<std::string> added_procedures_;
};

/// A SQLite database with the probe procedures.
[[nodiscard]] std::unique_ptr<DatabaseUnderTest> MakeSqliteProbes();

}  // namespace ferrowind::contract
