// What the programs of the house make and check a database by.

#include <gtest/gtest.h>

#include "ferrowind/adapters/postgres/database_objects.h"

#include "tests/contract/postgres/model_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {

const std::string& ModelDatabase() {
  static const std::string name = [] {
    std::string created = postgres_server::CreateEmptyDatabase();
    postgres::CreateDatabaseObjects(postgres_server::SuperuserUri(created));
    return created;
  }();
  return name;
}

bool IsSoundDatabase(const std::string& database) {
  const auto problems = postgres::CheckDatabase(postgres_server::SuperuserUri(database));
  for (const auto& problem : problems) ADD_FAILURE() << problem;
  return problems.empty();
}

}  // namespace ferrowind::contract
