#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/odbc/engine.h"

#include "tests/contract/postgres/server_database.h"

namespace ferrowind::contract {

/// A calendar database of the server that drivers of ODBC connect to.
class OdbcDatabase : public ServerDatabase {
 public:
  /// `more` stands behind the connection string of operators.
  explicit OdbcDatabase(std::string more = {});

  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override;
  [[nodiscard]] bool IsSound() override;

 private:
  [[nodiscard]] std::string AdministratorsConnectionString() const override;

  std::string more_;
  odbc::Engine engine_;
};

/// A database on the server with the probe procedures; `more` as `OdbcDatabase` has it.
[[nodiscard]] std::unique_ptr<DatabaseUnderTest> MakeOdbcProbes(const std::string& more = {});

}  // namespace ferrowind::contract
