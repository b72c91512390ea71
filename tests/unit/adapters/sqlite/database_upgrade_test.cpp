// Bringing a database of an older version to this one.

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/statement.h"

#include "tests/contract/database/old_version.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::Arguments;
using contract::FailureTextOf;
using contract::ProcedureCaller;
using contract::RowsOf;
using contract::SqliteDatabase;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const Arguments kWeekdayRule = {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", 2}};

std::string ContentOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

constexpr std::int64_t kThisVersion = 8;

/// A database as an older version made it, with a calendar and a rule.
class OldDatabase : public contract::DatabaseUnderTest {
 public:
  explicit OldDatabase(int version = 1) {
    std::ofstream(Path()).close();
    Execute(contract::OldVersionScript(version, "sqlite"));
    Execute("PRAGMA journal_mode = WAL");
    if (version >= contract::kVersionWithContent) return;
    Execute(contract::kOldContent);
    Execute(
        "WITH RECURSIVE Day (N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM Day WHERE N < 365)"
        " INSERT INTO CldDay SELECT 978, 2026, N, date('2026-01-01', (N - 1) || ' days'), 1, NULL, NULL FROM "
        "Day");
  }

  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override { return "sqlite:" + Path(); }
  [[nodiscard]] std::string Path() const { return folder_.File("old.db"); }
  void Execute(const std::string& sql) { DatabaseHandle(Path()).Execute(sql.c_str()); }

 private:
  contract::TemporaryFolder folder_;
  sqlite::Engine engine_;
};

/// All cells of the rows of `query`.
std::string Answer(const std::string& path, const std::string& query) {
  const DatabaseHandle database(path);
  Statement ask(database, query);
  std::string cells;
  while (ask.Step()) {
    for (int column = 0; column < ask.ColumnCount(); ++column) cells += std::string(ask.Text(column)) + "|";
    cells += "\n";
  }
  return cells;
}

/// Everything but the rows of the tables of data.
std::string SchemaOf(const std::string& path) {
  return Answer(path, "PRAGMA user_version") + Answer(path, "PRAGMA application_id") +
         Answer(path, "SELECT type, name, tbl_name, sql FROM sqlite_schema ORDER BY type, name") +
         Answer(path, "SELECT * FROM ProcedureCatalogue ORDER BY Name") +
         Answer(path, "SELECT * FROM ProcedureParameter ORDER BY ProcedureName, Position");
}

/// The currencies have a test of their own.
std::string DataOf(const std::string& path) {
  std::string data;
  for (const char* table : {"CldHolidayType", "CldHoliday", "CldCalendar", "CldDay", "CldSetting"}) {
    data += Answer(path, std::string("SELECT * FROM ") + table);
  }
  return data;
}

TEST(DatabaseUpgrade, AnUpgradedDatabaseIsLikeANewOneAndKeepsItsData) {
  const SqliteDatabase fresh;
  for (const int version : {1, 2, 3, 4, 5, 6, 7}) {
    OldDatabase old(version);
    const std::string data = DataOf(old.Path());
    ASSERT_NE(SchemaOf(old.Path()), SchemaOf(fresh.Path()));
    ASSERT_EQ(ReadSchemaVersion(old.Path()), version);
    const auto outcome = UpgradeDatabase(old.Path());
    EXPECT_EQ(outcome.from, version);
    EXPECT_EQ(outcome.to, kThisVersion);
    EXPECT_EQ(ReadSchemaVersion(old.Path()), kThisVersion);
    EXPECT_EQ(SchemaOf(old.Path()), SchemaOf(fresh.Path()));
    EXPECT_EQ(DataOf(old.Path()), data);
    EXPECT_THAT(CheckDatabase(old.Path()), IsEmpty());
  }
}

TEST(DatabaseUpgrade, CurrenciesThatAreNoLegalMoneyAnyMoreGetTheirLastDays) {
  OldDatabase old(2);
  old.Execute(
      "INSERT INTO CldCalendar (ID1, Year1) VALUES (975, 2025);"
      "WITH RECURSIVE Day (N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM Day WHERE N < 365)"
      " INSERT INTO CldDay SELECT 975, 2025, N, date('2025-01-01', (N - 1) || ' days'), 1, NULL, NULL FROM "
      "Day;"
      "UPDATE DicCcy SET Name = 'Our own name' WHERE Ccy = 'EUR'");
  UpgradeDatabase(old.Path());
  const auto currency = [&](const std::string& code) {
    return Answer(old.Path(), "SELECT CcyID, CcyType, Name, LastDay FROM DicCcy WHERE Ccy = '" + code + "'");
  };
  EXPECT_EQ(currency("HRK"), "191|1|Kuna|2022-12-31|\n");
  EXPECT_EQ(currency("BGN"), "975|0|Bulgarian Lev|2025-12-31|\n") << "it has a calendar, so it stays money";
  EXPECT_EQ(currency("XCG"), "532|0|Caribbean Guilder||\n");
  EXPECT_EQ(currency("ANG"), "530|1|Netherlands Antillean Guilder|2025-03-30|\n");
  EXPECT_EQ(currency("EUR"), "978|0|Our own name||\n");
  EXPECT_THAT(CheckDatabase(old.Path()), IsEmpty());
}

TEST(DatabaseUpgrade, WhatCallsReplacedIsKnownFromTheUpgradeOn) {
  OldDatabase old(2);
  old.Execute(
      "INSERT INTO CldHistory (Moment, UserName, ProcedureName, ID1, Year1, Parameters, ReturnValue, "
      "RowsChanged)"
      " VALUES ('2026-01-02T03:04:05.678Z', 'somebody', 'CldIUMain', 978, 2026, '{}', 0, 366)");
  UpgradeDatabase(old.Path());
  ProcedureCaller caller(old);
  ASSERT_EQ(caller.Return("CldIUMain", kWeekdayRule), 0);
  const auto as_of = [&](const std::string& moment) {
    return caller.Return("CldGetAsOf", {{"ID1", 978}, {"Year1", 2026}, {"Moment", moment}});
  };
  EXPECT_EQ(as_of("2026-01-02T03:04:06Z"), 9);
  EXPECT_EQ(as_of("9999-12-31T23:59:59Z"), 0);
  EXPECT_EQ(caller.Return("CldUndo", {{"EntryID", 1}}), 9);
  EXPECT_EQ(caller.Return("CldUndo", {{"EntryID", 2}}), 0);
  EXPECT_EQ(as_of(Answer(old.Path(), "SELECT max(Moment) FROM CldHistoryStart").substr(0, 24)), 0);
}

TEST(DatabaseUpgrade, BooksFromBeforeTellOfAllYearsAndChangesOfThemCanBeUndone) {
  OldDatabase old(3);
  // As version 3 kept two calls for the book.
  old.Execute(
      "INSERT INTO CldBook VALUES (978, 'Second', 'D');"
      "INSERT INTO CldRecurrence VALUES (978, 1, 'A', 3, '01-01', NULL, NULL);"
      "INSERT INTO CldHistory (Moment, UserName, ProcedureName, ID1, Parameters, ReturnValue, RowsChanged)"
      " VALUES ('2026-01-02T03:04:05.678Z', 'somebody', 'CldIUBook', 978, '{}', 0, 2),"
      " ('2026-01-02T03:04:06.678Z', 'somebody', 'CldIUBook', 978, '{}', 0, 1);"
      "INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName, ID1, Position, OldRow) VALUES"
      " (1, 1, 'CldBook', 978, NULL, NULL), (1, 2, 'CldRecurrence', 978, 1, NULL),"
      R"( (2, 1, 'CldBook', 978, NULL, '{"Publisher" : "First", "Document" : "D"}'))");
  UpgradeDatabase(old.Path());
  const auto book = [&] { return Answer(old.Path(), "SELECT Publisher, FromYear FROM CldBook"); };
  EXPECT_EQ(book(), "Second||\n");
  ProcedureCaller caller(old);
  const auto expected = (*caller.Call("CldGetBook", {{"ID1", 978}}).record_sets.at(0))["Fingerprint"];
  ASSERT_EQ(caller.Return("CldIUBook", {{"ID1", 978},
                                        {"Expected", expected},
                                        {"Publisher", "Third"},
                                        {"Document", "D"},
                                        {"Rules", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"}])"},
                                        {"FromYear", 2015}}),
            0);
  EXPECT_EQ(book(), "Third|2015|\n");
  for (const auto& [entry, left] : {std::pair(3, "Second||\n"), {2, "First||\n"}, {1, ""}}) {
    EXPECT_EQ(caller.Return("CldUndo", {{"EntryID", entry}}), 0) << entry;
    EXPECT_EQ(book(), left);
  }
  EXPECT_THAT(CheckDatabase(old.Path()), IsEmpty());
}

TEST(DatabaseUpgrade, AnUpgradedDatabaseKeepsAHistory) {
  OldDatabase old;
  UpgradeDatabase(old.Path());
  ProcedureCaller caller(old);
  const auto entries = [&] { return RowsOf(*caller.Call("CldGetHistory").record_sets.at(0)); };
  EXPECT_THAT(entries(), IsEmpty());
  ASSERT_EQ(caller.Return("CldIUMain", kWeekdayRule), 0);
  EXPECT_THAT(entries(), SizeIs(1));
}

TEST(DatabaseUpgrade, AnOlderDatabaseIsReadAndRefusesChangesByWords) {
  for (const int version : {1, 2, 3, 4, 5, 6, 7}) {
    OldDatabase old(version);
    const std::string data = DataOf(old.Path());
    ProcedureCaller caller(old);
    EXPECT_EQ(caller.Call("CldGetMain", {{"ID1", 978}, {"Year1", 2026}}).record_sets.size(), 1U);
    const auto says_how = AllOf(HasSubstr("old.db has the schema version " + std::to_string(version) +
                                          "; this program's is " + std::to_string(kThisVersion)),
                                HasSubstr("ferrowindctl upgrade"));
    EXPECT_THAT(FailureTextOf([&] { (void)caller.Call("CldIUMain", kWeekdayRule); }), says_how);
    EXPECT_EQ(DataOf(old.Path()), data);
  }
}

TEST(DatabaseUpgrade, ANewerDatabaseIsReadAndRefusesChangesByWords) {
  SqliteDatabase newer;
  newer.Execute("PRAGMA user_version = 9");
  const std::string data = DataOf(newer.Path());
  ProcedureCaller caller(newer);
  EXPECT_EQ(caller.Call("CldAllInfo").return_value, 0);
  EXPECT_THAT(FailureTextOf([&] {
                (void)caller.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2026}});
              }),
              AllOf(HasSubstr("has the schema version 9; this program's is 8"), HasSubstr("newer version")));
  EXPECT_EQ(DataOf(newer.Path()), data);
}

TEST(DatabaseUpgrade, ADatabaseOfThisVersionIsLeftAlone) {
  const SqliteDatabase fresh;
  const std::string before = ContentOfFile(fresh.Path());
  const auto outcome = UpgradeDatabase(fresh.Path());
  EXPECT_EQ(outcome.from, kThisVersion);
  EXPECT_EQ(outcome.to, kThisVersion);
  EXPECT_EQ(ContentOfFile(fresh.Path()), before);
}

TEST(DatabaseUpgrade, ADatabaseOfANewerOrAnUnknownVersionIsRefused) {
  SqliteDatabase fresh;
  fresh.Execute("PRAGMA user_version = 9");
  const std::string before = SchemaOf(fresh.Path());
  EXPECT_THAT(FailureTextOf([&] { UpgradeDatabase(fresh.Path()); }),
              AllOf(HasSubstr("has the schema version 9; this program's is 8"), HasSubstr("newer")));
  EXPECT_EQ(SchemaOf(fresh.Path()), before);
  fresh.Execute("PRAGMA user_version = 0");
  EXPECT_THAT(FailureTextOf([&] { UpgradeDatabase(fresh.Path()); }), HasSubstr("schema version 0"));
}

TEST(DatabaseUpgrade, AScriptThatFailsAtItsEndLeavesTheDatabaseAsItWas) {
  OldDatabase old;
  // In the way of what the last script makes.
  old.Execute("CREATE TABLE OldCldBook (N)");
  const std::string schema = SchemaOf(old.Path());
  const std::string data = DataOf(old.Path());
  EXPECT_THAT(FailureTextOf([&] { UpgradeDatabase(old.Path()); }),
              AllOf(HasSubstr("The upgrade failed, and the database is as it was"), HasSubstr("OldCldBook")));
  EXPECT_EQ(SchemaOf(old.Path()), schema);
  EXPECT_EQ(DataOf(old.Path()), data);
  old.Execute("DROP TABLE OldCldBook");
  EXPECT_EQ(UpgradeDatabase(old.Path()).to, kThisVersion);
  EXPECT_THAT(CheckDatabase(old.Path()), IsEmpty());
}

TEST(DatabaseUpgrade, OneThatIsToldToStopLeavesTheDatabaseAsItWas) {
  OldDatabase old(4);
  old.Execute(
      "WITH RECURSIVE Entry (N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM Entry WHERE N < 2000)"
      " INSERT INTO CldHistory SELECT N, '2026-01-01T00:00:00.000Z', 'anna', 'CldIUMain', 978, 2026, '{}', "
      "0, 0"
      " FROM Entry");
  const std::string schema = SchemaOf(old.Path());
  int times = 0;
  EXPECT_THAT(FailureTextOf([&] { UpgradeDatabase(old.Path(), [&] { return ++times > 1; }); }),
              HasSubstr("The upgrade failed, and the database is as it was"));
  EXPECT_EQ(times, 2);
  EXPECT_EQ(SchemaOf(old.Path()), schema);
  EXPECT_EQ(UpgradeDatabase(old.Path(), [] { return false; }).to, kThisVersion);
}

TEST(DatabaseUpgrade, ProceduresAreRenewedAndThoseOfOthersStay) {
  OldDatabase old;
  old.Execute(
      "UPDATE ProcedureCatalogue SET Body = 'SELECT 1' WHERE Name = 'CldGetMain';"
      "INSERT INTO ProcedureCatalogue VALUES ('Mine', 0, 'SELECT 7 AS Seven');"
      "INSERT INTO ProcedureParameter VALUES ('Mine', 0, '@RETURN_VALUE', 'int32', 'return')");
  UpgradeDatabase(old.Path());
  EXPECT_THAT(CheckDatabase(old.Path()), ElementsAre("The procedure Mine does not belong to the schema"));
  EXPECT_EQ(ProcedureCaller(old).Call("Mine").record_sets.size(), 1U);
}

TEST(DatabaseUpgrade, OfTwoUpgradesAtTheSameTimeOneDoesTheWork) {
  OldDatabase old;
  content::UpgradeOutcome outcomes[2];
  {
    std::thread first([&] { outcomes[0] = UpgradeDatabase(old.Path()); });
    outcomes[1] = UpgradeDatabase(old.Path());
    first.join();
  }
  EXPECT_EQ(outcomes[0].from + outcomes[1].from, 1 + kThisVersion);
  EXPECT_THAT(CheckDatabase(old.Path()), IsEmpty());
}

TEST(DatabaseUpgrade, WhatIsNoCalendarDatabaseIsRefused) {
  const contract::TemporaryFolder folder;
  const std::string path = folder.File("other.db");
  EXPECT_THAT(FailureTextOf([&] { UpgradeDatabase(path); }), HasSubstr("there is no such file"));
  std::ofstream(path).close();
  DatabaseHandle(path).Execute("CREATE TABLE Orders (N)");
  EXPECT_THAT(FailureTextOf([&] { UpgradeDatabase(path); }), HasSubstr("is not a calendar database"));
  EXPECT_THAT(FailureTextOf([&] { (void)ReadSchemaVersion(path); }), HasSubstr("is not a calendar database"));
}

}  // namespace
}  // namespace ferrowind::sqlite
