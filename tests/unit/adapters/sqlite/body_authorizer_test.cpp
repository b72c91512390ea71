#include "ferrowind/adapters/sqlite/body_authorizer.h"

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::FailureTextOf;
using contract::ProcedureCaller;
using contract::SqliteDatabase;
using ::testing::HasSubstr;

class BodyAuthorizerTest : public ::testing::Test {
 protected:
  /// What a call of a procedure with that statement fails with.
  std::string FailureOfBody(const std::string& kind, const std::string& statement) {
    const std::string name = "Try" + std::to_string(++count_);
    database_.AddProcedure("-- procedure " + name + " " + kind + "\n" + statement);
    return FailureTextOf([&] { (void)ProcedureCaller(database_).Call(name); });
  }

  SqliteDatabase database_;
  int count_ = 0;
};

TEST_F(BodyAuthorizerTest, RefusesInABodyWhatReachesBeyondItsTables) {
  const std::string other_file = database_.Path() + ".other";
  const std::string folder = std::filesystem::path(database_.Path()).parent_path().string();
  for (const std::string& statement :
       {"ATTACH '" + other_file + "' AS other",
        std::string("DETACH main"),
        std::string("PRAGMA journal_mode = DELETE"),
        std::string("PRAGMA user_version = 99"),
        std::string("SELECT * FROM pragma_database_list"),
        std::string("VACUUM"),
        "VACUUM INTO '" + other_file + "'",
        std::string("COMMIT"),
        std::string("ROLLBACK"),
        std::string("SAVEPOINT s"),
        std::string("CREATE TABLE T (N)"),
        std::string("CREATE TEMP TABLE T (N)"),
        std::string("DROP TABLE CldDay"),
        std::string("ALTER TABLE CldDay RENAME TO T"),
        std::string("CREATE TRIGGER t AFTER INSERT ON CldDay BEGIN SELECT 1; END"),
        std::string("REINDEX"),
        std::string("ANALYZE"),
        std::string("SELECT load_extension('x')"),
        std::string("SELECT hex(zeroblob(1000000))"),
        std::string("SELECT length(randomblob(10))"),
        std::string("SELECT printf('%.1000000c', 'a')"),
        std::string("UPDATE ProcedureCatalogue SET Body = ''"),
        std::string("DELETE FROM procedureparameter"),
        std::string("INSERT INTO CldHistory (UserName, ProcedureName, Parameters, ReturnValue, RowsChanged)"
                    " VALUES ('somebody', 'CldIUMain', '{}', 0, 1)"),
        std::string("INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName) VALUES (1, 1, 'CldDay')"),
        std::string("INSERT INTO CldHistoryStart VALUES (1, '2026-01-01T00:00:00.000Z')"),
        std::string("INSERT INTO CldChainStart VALUES (978, 2026, 0, NULL, '')"),
        std::string("UPDATE sqlite_schema SET type = 'view'"),
        std::string("UPDATE sqlite_master SET sql = ''"),
        std::string("INSERT INTO sqlite_schema (type) VALUES ('table')")}) {
    EXPECT_THAT(FailureOfBody("writes", statement), HasSubstr("SQLite ")) << statement;
  }
  EXPECT_FALSE(std::filesystem::exists(other_file));
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(BodyAuthorizerTest, RefusesAnyChangeInABodyThatOnlyReads) {
  for (const std::string statement : {"INSERT INTO CldCalendar VALUES (978, 2026)",
                                      "UPDATE CldSetting SET FirstDay = 2", "DELETE FROM CldSetting"}) {
    EXPECT_THAT(FailureOfBody("reads", statement), HasSubstr("SQLite 23: not authorized")) << statement;
  }
}

TEST_F(BodyAuthorizerTest, LetsABodyReadAndChangeRows) {
  for (const std::string statement :
       {"INSERT INTO CldCalendar VALUES (978, 2026)", "UPDATE CldSetting SET FirstDay = 2",
        "DELETE FROM CldCalendar", "SELECT upper(Ccy), count(*) OVER () FROM DicCcy",
        "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9) "
        "SELECT max(i) FROM n"}) {
    EXPECT_EQ(FailureOfBody("writes", statement), "") << statement;
  }
}

TEST_F(BodyAuthorizerTest, EndsWithTheBody) {
  DatabaseHandle database = DatabaseHandle::InMemory();
  { const BodyAuthorizer authorizer(database, false); }
  database.Execute("CREATE TABLE T (N)");
  EXPECT_EQ(sqlite3_get_autocommit(database.Get()), 1);
}

}  // namespace
}  // namespace ferrowind::sqlite
