// Files that somebody made to do harm: a call ends in time, with a failure that says so.

#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/content/content_copy.h"
#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;

/// A table that never comes to an end, in the place of a delivered one.
const std::string kEndlessDays =
    "PRAGMA foreign_keys = OFF; INSERT INTO CldCalendar (ID1, Year1) VALUES (978, 2026); DROP TABLE CldDay;"
    " CREATE VIEW CldDay AS WITH RECURSIVE Endless (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM Endless)"
    " SELECT 978 AS ID1, 2026 AS Year1, n AS Day1, n AS ODate, n AS TID1, n AS ID2, n AS Comment FROM Endless"
    " WHERE n < 0";

class SqliteHostileFile : public ::testing::Test {
 protected:
  /// What a call fails with that may take so long.
  [[nodiscard]] std::string FailureOfCall(milliseconds longest, const std::string& procedure,
                                          const std::vector<platform::Value>& inputs = {}) {
    return FailureTextOf([&] {
      sqlite::Engine engine(milliseconds(50), longest);
      (void)engine.Connect(database_.ConnectionString())->Call(procedure, inputs);
    });
  }

  /// All that a window or a command begins with, but the check, which tells more.
  void ExpectAllRefuse(const std::string& what) {
    const std::string url = database_.ConnectionString();
    const std::string path = database_.Path();
    const std::function<void()> beginnings[] = {
        [&] { (void)sqlite::Engine().Connect(url); },
        [&] { (void)sqlite::Engine().ReadDictionary(url, "Ccy"); },
        [&] { (void)sqlite::Engine().Watch(url)->Look(); },
        [&] { (void)sqlite::UpgradeDatabase(path); },
        [&] { (void)sqlite::ReadSchemaVersion(path); },
        [&] { sqlite::RequireThisVersion(path); },
        [&] { (void)sqlite::OpenContent(path); },
        [&] { (void)sqlite::ReadStatus(path); },
        [&] { sqlite::FillDatabase(path, [](content::Target&) {}); },
    };
    for (const auto& begin : beginnings) {
      EXPECT_THAT(FailureTextOf(begin), AllOf(HasSubstr(path), HasSubstr("holds the " + what)));
    }
  }

  SqliteDatabase database_;
};

TEST_F(SqliteHostileFile, NothingOfADatabaseIsUsedThatHoldsAForeignView) {
  database_.Execute(kEndlessDays);
  ExpectAllRefuse("view CldDay");
}

TEST_F(SqliteHostileFile, NothingOfADatabaseIsUsedThatHoldsAForeignTrigger) {
  database_.Execute("CREATE TRIGGER Swallow BEFORE INSERT ON CldHistory BEGIN SELECT RAISE(IGNORE); END");
  ExpectAllRefuse("trigger Swallow");
}

TEST_F(SqliteHostileFile, NothingOfADatabaseIsUsedWhoseViewOrTableIsAnother) {
  database_.Execute("DROP VIEW CalendarDay; CREATE VIEW CalendarDay AS SELECT 1 AS ID1");
  ExpectAllRefuse("view CalendarDay");
  SqliteDatabase other;
  other.Execute("ALTER TABLE CldDay ADD Extra AS (CASE WHEN TID1 = 1 THEN 2 END)");
  EXPECT_THAT(FailureTextOf([&] { (void)ProcedureCaller(other).Call("CldAllInfo"); }),
              HasSubstr("table CldDay"));
}

TEST_F(SqliteHostileFile, AnEndlessViewInThePlaceOfTheProceduresIsNotRead) {
  database_.Execute(
      "PRAGMA foreign_keys = OFF; DROP TABLE ProcedureCatalogue; CREATE VIEW ProcedureCatalogue AS"
      " WITH RECURSIVE Endless (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM Endless)"
      " SELECT 'x' AS Name, n AS Writes, 'x' AS Body FROM Endless WHERE n < 0");
  const auto start = steady_clock::now();
  ExpectAllRefuse("view ProcedureCatalogue");
  EXPECT_THAT(sqlite::CheckDatabase(database_.Path()),
              Contains(HasSubstr("view ProcedureCatalogue does not belong")));
  EXPECT_LT(steady_clock::now() - start, seconds(10));
}

TEST_F(SqliteHostileFile, AViewThatComesWhileAConnectionIsOpenIsRefusedByTheNextCall) {
  const auto connection = database_.Engine().Connect(database_.ConnectionString());
  EXPECT_EQ(connection->Call("CldAllInfo", {}).return_value, 0);
  database_.Execute(kEndlessDays);
  EXPECT_THAT(FailureTextOf([&] { (void)connection->Call("CldAllInfo", {}); }), HasSubstr("view CldDay"));
}

TEST_F(SqliteHostileFile, AnotherVersionsOwnViewsAndTriggersAreNoneOfSomebodyElse) {
  // As if a program of the version before had made it.
  database_.Execute("PRAGMA user_version = 3");
  EXPECT_EQ(ProcedureCaller(database_).Call("CldAllInfo").return_value, 0);
  database_.Execute("CREATE VIEW Stray AS SELECT 1");
  EXPECT_THAT(FailureTextOf([&] { (void)sqlite::UpgradeDatabase(database_.Path()); }),
              HasSubstr("view Stray"));
}

TEST_F(SqliteHostileFile, ABodyThatNeverEndsEndsWithTheTimeOfTheCallAndChangesNothing) {
  database_.AddProcedure(R"(-- procedure Endless writes
UPDATE CldSetting SET FirstDay = 5;
WITH RECURSIVE Endless (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM Endless) SELECT max(n) AS n FROM Endless;
)");
  EXPECT_THAT(FailureOfCall(milliseconds(300), "Endless"), HasSubstr("it took too long"));
  const auto all = ProcedureCaller(database_).Call("CldAllInfo");
  EXPECT_EQ(platform::ToInt32((*all.record_sets.at(3))["FirstDay"]), 1);
}

TEST_F(SqliteHostileFile, AStatementThatGoesStraightOnForLongIsRefused) {
  // SQLite looks at the time where a statement goes round, and this one never does.
  std::string body = "-- procedure Straight reads\nSELECT 'a' AS [@a];\nSELECT 0";
  for (int i = 0; i < 900; ++i) body += ", length(upper(lower(upper(:a))))";
  database_.AddProcedure(body + ";");
  EXPECT_THAT(FailureOfCall(std::chrono::minutes(10), "Straight"), HasSubstr("not enough memory"));
}

/// A text of 15 MB in the variable :a.
const std::string kLongText =
    "WITH RECURSIVE D (s, n) AS (SELECT '0123456789abcde', 0 UNION ALL SELECT s || s, n + 1 FROM D WHERE n < "
    "20)"
    " SELECT s AS [@a] FROM D WHERE n = 20;\n";

TEST_F(SqliteHostileFile, ManyRecordSetsTakeNoMoreMemoryThanOne) {
  std::string body = "-- procedure Large reads\n" + kLongText;
  for (int i = 0; i < 40; ++i) body += "SELECT :a AS a;\n";
  database_.AddProcedure(body);
  EXPECT_THAT(FailureOfCall(std::chrono::minutes(10), "Large"), HasSubstr("more than 512 MB"));
}

TEST_F(SqliteHostileFile, ManyVariablesTakeNoMoreMemoryThanARecordSet) {
  std::string body = "-- procedure Large reads\n" + kLongText;
  for (int i = 0; i < 40; ++i) body += "SELECT :a AS [@a" + std::to_string(i) + "];\n";
  database_.AddProcedure(body);
  EXPECT_THAT(FailureOfCall(std::chrono::minutes(10), "Large"), HasSubstr("more than 512 MB"));
}

TEST_F(SqliteHostileFile, ManyRecordSetsOfOneRowTakeNoMoreMemoryThanALongOne) {
  std::string body = "-- procedure Large reads\n";
  for (int i = 0; i < 40000; ++i) body += "SELECT 1 AS a;\n";
  database_.AddProcedure(body);
  EXPECT_THAT(FailureOfCall(std::chrono::minutes(10), "Large"), HasSubstr("more than 512 MB"));
}

TEST_F(SqliteHostileFile, TheTimeThatAnotherProgramHoldsTheFileIsNotThatOfTheCall) {
  sqlite::Engine engine(seconds(30), milliseconds(300));
  const auto connection = engine.Connect(database_.ConnectionString());
  const std::vector<platform::Value> inputs = {978, 2031, {}, {}, {}, {}, {}};
  ASSERT_EQ(connection->DescribeProcedure("CldIUMain").size(), inputs.size() + 1);
  sqlite::DatabaseHandle other(database_.Path());
  other.Execute("BEGIN IMMEDIATE");
  std::thread release([&] {
    std::this_thread::sleep_for(milliseconds(600));
    other.Execute("ROLLBACK");
  });
  EXPECT_EQ(FailureTextOf([&] { (void)connection->Call("CldIUMain", inputs); }), "");
  release.join();
}

TEST_F(SqliteHostileFile, ACopyTellsOfItselfAlsoWithinFewLongRows) {
  ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2031}}), 0);
  database_.Execute("UPDATE CldDay SET Comment = printf('%.15000000c', 'x') WHERE Day1 <= 6");
  const auto source = sqlite::OpenContent(database_.Path());
  SqliteDatabase copy;
  std::int64_t between = 0;
  const auto observe = [&](const content::CopyProgress& progress) {
    if (progress.done % 128 != 0) ++between;
  };
  sqlite::FillDatabase(copy.Path(),
                       [&](content::Target& target) { content::CopyContent(*source, target, observe); });
  EXPECT_GT(between, 0);
}

TEST_F(SqliteHostileFile, ACopyStopsInTheMiddleOfAStatementWhenItIsAsked) {
  constexpr int kEntries = 100000;
  database_.Execute(
      "WITH RECURSIVE N (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < " +
      std::to_string(kEntries) +
      ") INSERT INTO CldHistory (Moment, UserName, ProcedureName, Parameters,"
      " ReturnValue, RowsChanged, ChainPosition, Previous, Hash)"
      " SELECT '2026-01-01T00:00:00.000Z', 'eve', 'CldIUMain', '{}', 0, n, 1000 + n, '', '' FROM N");
  bool is_stopped = false;
  const auto source = sqlite::OpenContent(database_.Path(), [&] { return is_stopped; });
  is_stopped = true;
  int read = 0;
  const std::string failure = FailureTextOf([&] {
    for (const content::Table& table : content::Tables()) {
      const auto rows = source->Rows(table, content::RowOrder::kByKey);
      for (content::Row row; rows->Next(row);) ++read;
    }
  });
  EXPECT_THAT(failure, HasSubstr("was told to stop"));
  EXPECT_LT(read, kEntries / 2);
}

}  // namespace
}  // namespace ferrowind::contract
