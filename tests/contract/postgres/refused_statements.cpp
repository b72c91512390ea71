#include "tests/contract/postgres/refused_statements.h"

#include <gmock/gmock.h>

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {

using ::testing::AnyOf;
using ::testing::HasSubstr;

std::vector<std::string> AskAll(const std::string& database, const std::string& query) {
  postgres::ServerConnection connection(postgres_server::SuperuserUri(database));
  const auto result = connection.Query(query);
  std::vector<std::string> texts;
  for (int row = 0; row < PQntuples(result.get()); ++row) {
    texts.emplace_back(PQgetvalue(result.get(), row, 0));
  }
  return texts;
}

void ExpectRefused(postgres::ServerConnection& connection, const std::string& sql) {
  const std::string failure = FailureTextOf([&] { connection.RunScript(sql); });
  EXPECT_THAT(failure, AnyOf(HasSubstr("permission denied"), HasSubstr("must be owner"),
                             HasSubstr("must be superuser"), HasSubstr("must be member"),
                             HasSubstr("must have admin option"), HasSubstr("is not allowed")))
      << sql;
}

}  // namespace ferrowind::contract
