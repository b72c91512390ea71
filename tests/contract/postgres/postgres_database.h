#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/postgres/engine.h"

#include "tests/contract/database/database_with_history.h"

namespace ferrowind::contract {

/// A new calendar database without delivered rules on the server of the test, dropped at the end. Calls log
/// in as an operator.
class PostgresDatabase : public DatabaseWithHistoryUnderTest {
 public:
  /// `more` stands behind the connection string of operators.
  explicit PostgresDatabase(std::string more = {});
  PostgresDatabase(const PostgresDatabase&) = delete;
  PostgresDatabase& operator=(const PostgresDatabase&) = delete;
  ~PostgresDatabase() override;

  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override;
  [[nodiscard]] std::string ConnectionStringFor(const std::string& procedure) override;
  void SetFirstDay(int first_day) override;
  void SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) override;
  [[nodiscard]] bool IsSound() override;
  [[nodiscard]] std::string UserName() override;

  [[nodiscard]] const std::string& Name() const { return name_; }
  /// Runs SQL as the superuser.
  void Execute(const std::string& sql);

 private:
  std::string name_;
  std::string more_;
  postgres::Engine engine_;
};

/// A database on the server with the probe procedures; `more` as `PostgresDatabase` has it.
[[nodiscard]] std::unique_ptr<DatabaseUnderTest> MakePostgresProbes(const std::string& more = {});

}  // namespace ferrowind::contract
