// The constraints that keep wrong rows out, whoever writes them.

#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "ferrowind/adapters/sql_script/statement_splitter.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::FailureTextOf;
using contract::ProcedureCaller;
using contract::SqliteDatabase;
using ::testing::HasSubstr;

class SchemaTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
    database_.Execute("INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Sunday', 2, 1)");
  }

  void ExpectRefused(const std::string& sql) {
    EXPECT_THAT(FailureTextOf([&] { database_.Execute(sql); }), HasSubstr("refuses a wrong row")) << sql;
  }

  SqliteDatabase database_;
};

TEST_F(SchemaTest, ACalendarIsOfAKnownCurrencyAndAYearInRange) {
  ExpectRefused("INSERT INTO CldCalendar VALUES (1, 2026)");
  ExpectRefused("INSERT INTO CldCalendar VALUES (978, 1899)");
  ExpectRefused("INSERT INTO CldCalendar VALUES (978, 3001)");
  ExpectRefused("INSERT INTO CldCalendar VALUES (978, 2026.5)");
  ExpectRefused("INSERT INTO CldCalendar VALUES (978, 2026)");
  ExpectRefused("DELETE FROM DicCcy WHERE CcyID = 978");
}

TEST_F(SchemaTest, ADayIsOfACalendarAndHasItsOwnDate) {
  ExpectRefused("UPDATE CldDay SET Year1 = 2027 WHERE Day1 = 5");
  ExpectRefused("UPDATE CldDay SET ODate = '2026-01-06' WHERE Day1 = 5");
  ExpectRefused("UPDATE CldDay SET ODate = 'soon' WHERE Day1 = 5");
  ExpectRefused("UPDATE CldDay SET ODate = NULL WHERE Day1 = 5");
  ExpectRefused("INSERT INTO CldDay VALUES (978, 2026, 366, '2027-01-01', 1, NULL, NULL)");
  ExpectRefused("INSERT INTO CldDay VALUES (978, 2026, 0, '2025-12-31', 1, NULL, NULL)");
  ExpectRefused("DELETE FROM CldCalendar");
}

TEST_F(SchemaTest, ADaysRuleExistsAndIsOfTheDaysType) {
  ExpectRefused("UPDATE CldDay SET TID1 = 2 WHERE Day1 = 5");
  ExpectRefused("UPDATE CldDay SET TID1 = 2, ID2 = 9 WHERE Day1 = 5");
  ExpectRefused("UPDATE CldDay SET TID1 = 3, ID2 = 2 WHERE Day1 = 5");
  ExpectRefused("UPDATE CldDay SET TID1 = 5 WHERE Day1 = 5");
  database_.Execute("UPDATE CldDay SET TID1 = 2, ID2 = 2 WHERE Day1 = 5");
  ExpectRefused("DELETE FROM CldHoliday WHERE ID2 = 2");
  ExpectRefused("UPDATE CldHoliday SET ID2 = 3 WHERE ID2 = 2");
}

TEST_F(SchemaTest, ARuleHasWhatItsTypeNeedsAndNothingElse) {
  const std::string columns = "INSERT INTO CldHoliday (Name1, TID1, D1, MY, MD, WD) VALUES ";
  for (const char* row : {"('x', 2, NULL, NULL, NULL, NULL)", "('x', 2, NULL, NULL, NULL, 8)",
                          "('x', 2, '2026-05-01', 5, 1, 1)", "('x', 3, NULL, NULL, NULL, NULL)",
                          "('x', 3, '2026-05-01', 5, 2, NULL)", "('x', 3, '2026-05-01', 4, 1, NULL)",
                          "('x', 3, '2026-05-01', NULL, 1, NULL)", "('x', 3, '2026-02-29', 2, 29, NULL)",
                          "('x', 4, '2026-05-01', 5, 1, 1)", "('x', 3, 2461162, 5, 1, NULL)",
                          "('x', 5, '2026-05-01', 5, 1, NULL)", "('x', 1, NULL, NULL, NULL, NULL)",
                          "('', 2, NULL, NULL, NULL, 1)", "('  ', 2, NULL, NULL, NULL, 1)",
                          "(NULL, 2, NULL, NULL, NULL, 1)", "(' SUNDAY ', 2, NULL, NULL, NULL, 1)"}) {
    ExpectRefused(columns + row);
  }
  database_.Execute((columns + "('x', 3, '2026-05-01', 5, 1, NULL)"));
}

TEST_F(SchemaTest, TheBuiltInRuleKeepsItsTypeAndIsNotRemoved) {
  ExpectRefused("UPDATE CldHoliday SET Del = 2 WHERE ID2 = 1");
  ExpectRefused("UPDATE CldHoliday SET TID1 = 2, WD = 1 WHERE ID2 = 1");
  ExpectRefused("UPDATE CldHoliday SET Del = 3 WHERE ID2 = 2");
}

TEST_F(SchemaTest, ThereIsOneSettingWithAWeekday) {
  ExpectRefused("INSERT INTO CldSetting VALUES (2)");
  ExpectRefused("UPDATE CldSetting SET FirstDay = 0");
  ExpectRefused("UPDATE CldSetting SET FirstDay = 8");
  ExpectRefused("UPDATE CldSetting SET FirstDay = NULL");
}

TEST_F(SchemaTest, TheHistoryIsOnlyAddedTo) {
  ExpectRefused("UPDATE CldHistory SET UserName = 'nobody'");
  ExpectRefused("DELETE FROM CldHistory");
  ExpectRefused(
      "INSERT INTO CldHistory (Moment, UserName, ProcedureName, Parameters, ReturnValue, RowsChanged) "
      "VALUES ('yesterday', 'x', 'x', '{}', 0, 1)");
}

TEST_F(SchemaTest, TheRowsOfTheHistoryAreOnlyAddedTo) {
  ExpectRefused("UPDATE CldHistoryRow SET OldRow = NULL");
  ExpectRefused("DELETE FROM CldHistoryRow");
  ExpectRefused("INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName) VALUES (77, 1, 'CldDay')");
  ExpectRefused("INSERT INTO CldHistoryStart VALUES (0, 'yesterday')");
  database_.Execute("INSERT INTO CldHistoryStart VALUES (0, '2026-01-01T00:00:00.000Z')");
  ExpectRefused("INSERT INTO CldHistoryStart VALUES (1, '2026-01-01T00:00:00.000Z')");
}

TEST_F(SchemaTest, ARuleBookIsOfACurrencyAndItsRulesAreWhole) {
  ExpectRefused("INSERT INTO CldBook VALUES (1, 'P', 'D', NULL)");
  ExpectRefused("INSERT INTO CldBook VALUES (978, NULL, 'D', NULL)");
  ExpectRefused("INSERT INTO CldBook VALUES (978, 'P', NULL, NULL)");
  for (const char* year : {"1899", "3001", "2015.5", "'soon'"}) {
    ExpectRefused(std::string("INSERT INTO CldBook VALUES (978, 'P', 'D', ") + year + ")");
  }
  ExpectRefused("INSERT INTO CldRecurrence VALUES (978, 1, 'A', 3, '01-01', NULL, NULL)");
  database_.Execute("INSERT INTO CldBook VALUES (978, 'P', 'D', 2015)");
  for (const char* row : {"(978, 0, 'A', 3, '01-01', NULL, NULL)", "(978, 1, ' ', 3, '01-01', NULL, NULL)",
                          "(978, 1, NULL, 3, '01-01', NULL, NULL)", "(978, 1, 'A', 5, '01-01', NULL, NULL)",
                          "(978, 1, 'A', 3, '', NULL, NULL)", "(978, 1, 'A', 3, NULL, NULL, NULL)"}) {
    ExpectRefused(std::string("INSERT INTO CldRecurrence VALUES ") + row);
  }
  database_.Execute("INSERT INTO CldRecurrence VALUES (978, 1, 'A', 3, '01-01', NULL, NULL)");
  ExpectRefused("DELETE FROM CldBook");
  ExpectRefused("DELETE FROM DicCcy WHERE CcyID = 978");
}

TEST_F(SchemaTest, ALastDayIsADate) {
  ExpectRefused("UPDATE DicCcy SET LastDay = '2026-02-30' WHERE CcyID = 978");
  ExpectRefused("UPDATE DicCcy SET LastDay = 'soon' WHERE CcyID = 978");
  database_.Execute("UPDATE DicCcy SET LastDay = '2026-02-28' WHERE CcyID = 978");
}

TEST_F(SchemaTest, OthersReadTheCalendarsInViewsAndByDate) {
  database_.Execute("UPDATE CldDay SET TID1 = 2, ID2 = 2, Comment = 'c' WHERE Day1 = 5");
  const DatabaseHandle database(database_.Path());
  const auto row = [&](const std::string& query) {
    Statement ask(database, query);
    std::string cells;
    while (ask.Step()) {
      for (int column = 0; column < ask.ColumnCount(); ++column) cells += std::string(ask.Text(column)) + "|";
    }
    return cells;
  };
  EXPECT_EQ(row("SELECT Ccy, Year FROM CalendarList"), "EUR|2026|");
  EXPECT_EQ(row("SELECT Ccy, Year, Date, IsWorkingDay, Type, Rule, Comment FROM CalendarDay"
                " WHERE Date BETWEEN '2026-01-05' AND '2026-01-06' ORDER BY Date"),
            "EUR|2026|2026-01-05|0|Holiday|Sunday|c|EUR|2026|2026-01-06|1|Working day|||");
  EXPECT_THAT(row("EXPLAIN QUERY PLAN SELECT * FROM CldDay WHERE ODate = '2026-01-05'"),
              HasSubstr("CldDayByDate"));
}

TEST_F(SchemaTest, AnUndoReadsOfTheHistoryOnlyTheDaysThatItAsksFor) {
  const DatabaseHandle database(database_.Path());
  const auto undo = ProcedureCatalogue(database).Find("CldUndo");
  ASSERT_TRUE(undo);
  std::size_t searches = 0;
  for (const auto& statement : sql_script::SplitStatements(undo->body)) {
    Statement ask(database, "EXPLAIN QUERY PLAN " + std::string(statement.text));
    while (ask.Step()) {
      const std::string step(ask.Text(3));
      if (!step.starts_with("SEARCH l ")) continue;
      EXPECT_THAT(step, HasSubstr("CldHistoryRowByKey (TableName=? AND ID1=? AND Year1=?"));
      ++searches;
    }
  }
  EXPECT_EQ(searches, 3U);
}

/// Of a program that has SQLite and nothing of ours.
class BareDatabase {
 public:
  explicit BareDatabase(const std::string& path) {
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    database_.reset(database);
  }

  /// The cells of all rows, or SQLite's message.
  std::string Read(const std::string& query) {
    std::string cells;
    const auto add_row = [](void* to, int columns, char** texts, char** /*names*/) {
      for (int column = 0; column < columns; ++column) {
        *static_cast<std::string*>(to) += std::string(texts[column] ? texts[column] : "") + '|';
      }
      return 0;
    };
    const int result = sqlite3_exec(database_.get(), query.c_str(), add_row, &cells, nullptr);
    return result == SQLITE_OK ? cells : sqlite3_errmsg(database_.get());
  }

 private:
  struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
  };
  std::unique_ptr<sqlite3, Close> database_;
};

TEST_F(SchemaTest, AnyProgramCanReadTheViews) {
  database_.Execute("UPDATE CldDay SET TID1 = 2, ID2 = 2, Comment = 'c' WHERE Day1 = 5");
  BareDatabase database(database_.Path());
  const std::string of_one_day = " FROM CalendarDay WHERE Date = '2026-01-05'";
  const std::string day = "EUR|2026|2026-01-05|0|Holiday|Sunday|c|";
  EXPECT_EQ(database.Read("SELECT Ccy, Year FROM CalendarList"), "EUR|2026|");
  EXPECT_EQ(database.Read("SELECT *" + of_one_day), day);
  EXPECT_EQ(database.Read("SELECT DISTINCT Ccy, Year, Date, IsWorkingDay, Type, Rule, Comment" + of_one_day),
            day);
  EXPECT_EQ(database.Read("SELECT Date FROM CalendarDay WHERE Rule = 'Sunday'"), "2026-01-05|");
  EXPECT_EQ(database.Read("SELECT Rule, count(*) FROM CalendarDay GROUP BY Rule ORDER BY Rule"),
            "|364|Sunday|1|");
}

TEST_F(SchemaTest, ACatalogueRowIsWhatTheEngineCanRead) {
  ExpectRefused("INSERT INTO ProcedureCatalogue VALUES ('cldgetmain', 0, 'SELECT 1')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('CldGetMain', 3, '@New', 'int64', 'in')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('CldGetMain', 3, 'New', 'int32', 'in')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('CldGetMain', 3, '@id1', 'int32', 'in')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('NoSuchOne', 0, '@RETURN_VALUE', 'int32', 'return')");
}

}  // namespace
}  // namespace ferrowind::sqlite
