#include "tests/contract/odbc/odbc_database.h"

#include <utility>

#include "tests/contract/odbc/odbc_server.h"
#include "tests/contract/postgres/model_database.h"

namespace ferrowind::contract {

OdbcDatabase::OdbcDatabase(std::string more) : ServerDatabase(ModelDatabase()), more_(std::move(more)) {}

std::string OdbcDatabase::ConnectionString() { return odbc_server::OperatorConnectionString(Name()) + more_; }

std::string OdbcDatabase::AdministratorsConnectionString() const {
  return odbc_server::SuperuserConnectionString(Name());
}

bool OdbcDatabase::IsSound() { return IsSoundDatabase(Name()); }

std::unique_ptr<DatabaseUnderTest> MakeOdbcProbes(const std::string& more) {
  auto database = std::make_unique<OdbcDatabase>(more);
  database->AddProbes();
  return database;
}

}  // namespace ferrowind::contract
