#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/postgres/engine.h"

#include "tests/contract/postgres/server_database.h"

namespace ferrowind::contract {

/// A calendar database of the server that libpq connects to.
class PostgresDatabase : public ServerDatabase {
 public:
  /// `more` stands behind the connection string of operators.
  explicit PostgresDatabase(std::string more = {});

  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override;
  [[nodiscard]] bool IsSound() override;

 private:
  [[nodiscard]] std::string AdministratorsConnectionString() const override;

  std::string more_;
  postgres::Engine engine_;
};

/// A database on the server with the probe procedures; `more` as `PostgresDatabase` has it.
[[nodiscard]] std::unique_ptr<DatabaseUnderTest> MakePostgresProbes(const std::string& more = {});

}  // namespace ferrowind::contract
