// Answers that no PostgreSQL server gives: a failure tells of them, and nothing is read that is not there.

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using postgres::ReadRecordSet;
using postgres::ReadWholeNumber;
using ::testing::HasSubstr;

struct Clear {
  void operator()(PGresult* result) const { PQclear(result); }
};
using Result = std::unique_ptr<PGresult, Clear>;

/// An answer with columns of these types, in the binary format, and one row of `cells` if there are any.
Result Answer(const std::vector<Oid>& types, const std::vector<std::string>& cells) {
  Result result(PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK));
  std::vector<PGresAttDesc> columns;
  std::string name = "a";
  for (const Oid type : types) columns.push_back({name.data(), 0, 0, 1, type, -1, -1});
  PQsetResultAttrs(result.get(), static_cast<int>(columns.size()), columns.data());
  for (std::size_t i = 0; i < cells.size(); ++i) {
    std::string bytes = cells[i];
    PQsetvalue(result.get(), 0, static_cast<int>(i), bytes.data(), static_cast<int>(bytes.size()));
  }
  return result;
}

TEST(PostgresResult, AWholeNumberIsTheOnlyCell) {
  EXPECT_EQ(ReadWholeNumber(Answer({postgres::type_id::kText}, {"-7"}).get()), -7);
}

TEST(PostgresResult, AWholeNumberThatIsNotThereIsNone) {
  using postgres::type_id::kText;
  EXPECT_EQ(ReadWholeNumber(Answer({kText}, {}).get()), std::nullopt) << "no row";
  EXPECT_EQ(ReadWholeNumber(Answer({}, {}).get()), std::nullopt) << "no column";
  EXPECT_EQ(ReadWholeNumber(Answer({kText, kText}, {"1", "2"}).get()), std::nullopt);
  EXPECT_EQ(ReadWholeNumber(Answer({kText}, {""}).get()), std::nullopt);
  EXPECT_EQ(ReadWholeNumber(Answer({kText}, {"1x"}).get()), std::nullopt);
  EXPECT_EQ(ReadWholeNumber(nullptr), std::nullopt);
}

TEST(PostgresResult, ANumberOfAnotherSizeThanItsTypeHasIsRefused) {
  for (const Oid type : {postgres::type_id::kInt2, postgres::type_id::kInt4, postgres::type_id::kInt8,
                         postgres::type_id::kDate}) {
    for (const std::string cell : {"", "1", "123", "123456789"}) {
      EXPECT_THAT(FailureTextOf([&] { (void)ReadRecordSet(Answer({type}, {cell}).get()); }),
                  HasSubstr("of another size than its type"))
          << type << " " << cell;
    }
  }
}

TEST(PostgresResult, OtherColumnsThanAskedForAreRefused) {
  using postgres::type_id::kText;
  EXPECT_EQ(ReadRecordSet(Answer({kText}, {"x"}).get(), 1)->RowCount(), 1U);
  for (const std::vector<Oid>& types : {std::vector<Oid>{}, std::vector<Oid>{kText, kText}}) {
    EXPECT_THAT(FailureTextOf([&] { (void)ReadRecordSet(Answer(types, {}).get(), 1); }),
                HasSubstr("columns instead of 1"));
  }
}

TEST(PostgresResult, RowsWithoutColumnsAndAnswersThatTellNoCountAreNoLies) {
  postgres::ServerConnection connection(postgres_server::SuperuserUri());
  EXPECT_EQ(PQnfields(connection.Query("SELECT FROM generate_series(1, 3)").get()), 0);
  EXPECT_GT(PQntuples(connection.Query("EXPLAIN SELECT 1").get()), 0);
  EXPECT_EQ(PQntuples(connection.Query("SHOW server_version_num").get()), 1);
  EXPECT_NO_THROW(connection.RunScript("SELECT FROM generate_series(1, 3); EXPLAIN SELECT 1; SHOW port"));
}

}  // namespace
}  // namespace ferrowind::contract
