#include "tests/contract/postgres/postgres_database.h"

#include <utility>

#include "tests/contract/postgres/model_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
PostgresDatabase::PostgresDatabase(std::string more)
    : ServerDatabase(ModelDatabase()), more_(std::move(more)) {}

std::string PostgresDatabase::ConnectionString() { return postgres_server::OperatorUri(Name()) + more_; }

std::string PostgresDatabase::AdministratorsConnectionString() const {
  return postgres_server::SuperuserUri(Name());
}

bool PostgresDatabase::IsSound() { return IsSoundDatabase(Name()); }

std::unique_ptr<DatabaseUnderTest> MakePostgresProbes(const std::string& more) {
  auto database = std::make_unique<PostgresDatabase>(more);
  database->AddProbes();
  return database;
}

}  // namespace ferrowind::contract
