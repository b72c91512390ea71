#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_file.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::ProcedureCaller;
using contract::SqliteDatabase;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;

constexpr const char* kNotLookedThrough =
    "The file is not looked through for damage as long as it holds tables or indexes that are not this "
    "program's";

class DatabaseCheckTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2024}}), 0);
    ASSERT_THAT(CheckDatabase(database_.Path()), IsEmpty());
  }

  /// The problems after the database was changed by someone who turned off its constraints.
  std::vector<std::string> ProblemsAfter(const std::string& sql) {
    database_.Execute("PRAGMA foreign_keys = OFF; PRAGMA ignore_check_constraints = ON; " + sql);
    return CheckDatabase(database_.Path());
  }

  /// The problems after the entries of the schema themselves were written to.
  std::vector<std::string> ProblemsAfterWritingTheSchema(const std::string& sql) {
    sqlite3* raw = nullptr;
    EXPECT_EQ(sqlite3_open(database_.Path().c_str(), &raw), SQLITE_OK);
    const std::string script = "PRAGMA writable_schema = ON; " + sql;
    EXPECT_EQ(sqlite3_exec(raw, script.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(raw);
    sqlite3_close(raw);
    return CheckDatabase(database_.Path());
  }

  SqliteDatabase database_;
};

TEST_F(DatabaseCheckTest, OfAnotherSchemaVersionSaysThatAlone) {
  EXPECT_THAT(
      ProblemsAfter("PRAGMA user_version = 9; DELETE FROM ProcedureParameter"),
      ElementsAre("The database has the schema version 9; this program's is 8. It takes a newer version "
                  "of this program"));
}

TEST_F(DatabaseCheckTest, FindsAMissingAndAnotherProcedure) {
  EXPECT_THAT(
      ProblemsAfter("DELETE FROM ProcedureParameter WHERE ProcedureName = 'CldGetMain';"
                    "DELETE FROM ProcedureCatalogue WHERE Name = 'CldGetMain';"
                    "UPDATE ProcedureCatalogue SET Body = 'SELECT 1' WHERE Name = 'CldAllInfo';"
                    "UPDATE ProcedureParameter SET Type = 'int16' WHERE Name = '@TID1' AND "
                    "ProcedureName = 'CldIUMain'"),
      ElementsAre("The procedure CldAllInfo is not this program's", "The procedure CldGetMain is missing",
                  "The procedure CldIUMain is not this program's"));
}

TEST_F(DatabaseCheckTest, FindsMissingAndForeignPartsOfTheSchema) {
  const auto problems = ProblemsAfter(
      "DROP INDEX CldSettingHasOneRow; CREATE TRIGGER Extra AFTER INSERT ON CldDay BEGIN SELECT 1; END");
  EXPECT_THAT(problems, ElementsAre("The index CldSettingHasOneRow is missing",
                                    "The trigger Extra does not belong to the schema"));
}

TEST_F(DatabaseCheckTest, FindsAForeignProcedure) {
  EXPECT_THAT(
      ProblemsAfter("INSERT INTO ProcedureCatalogue VALUES ('CldGetEvil', 1, 'UPDATE CldDay SET TID1 = 1')"),
      ElementsAre("The procedure CldGetEvil does not belong to the schema"));
}

TEST_F(DatabaseCheckTest, ComputesNoForeignConditionColumnOrIndex) {
  // Fails when it is computed, where somebody else's could do anything.
  EXPECT_THAT(ProblemsAfter("CREATE TABLE Extra (a CHECK (abs(a) >= 0)); INSERT INTO Extra VALUES"
                            " (-9223372036854775807 - 1)"),
              ElementsAre("The table Extra does not belong to the schema", kNotLookedThrough));
  EXPECT_THAT(ProblemsAfter("DROP TABLE Extra; ALTER TABLE CldDay ADD Extra AS (TID1 + 1)"),
              ElementsAre("The table CldDay is not this program's",
                          "The rows are not looked at as long as something else stands for a table"));
  SqliteDatabase other;
  other.Execute("CREATE INDEX Extra ON CldHoliday (abs(ID2))");
  EXPECT_THAT(CheckDatabase(other.Path()),
              ElementsAre("The index Extra does not belong to the schema", kNotLookedThrough));
}

TEST_F(DatabaseCheckTest, FindsATriggerOfANameThatOnlySqliteGives) {
  EXPECT_THAT(ProblemsAfterWritingTheSchema(
                  "INSERT INTO sqlite_schema VALUES ('trigger', 'sqlite_stat_x', 'CldHistory', 0,"
                  " 'CREATE TRIGGER sqlite_stat_x AFTER INSERT ON CldHistory BEGIN SELECT 1; END');"
                  "INSERT INTO sqlite_schema VALUES ('trigger', 'sqlite_stat1', 'CldHistory', 0,"
                  " 'CREATE TRIGGER sqlite_stat1 AFTER INSERT ON CldHistory BEGIN SELECT 1; END')"),
              ElementsAre("The trigger sqlite_stat1 does not belong to the schema",
                          "The trigger sqlite_stat_x does not belong to the schema"));
}

TEST_F(DatabaseCheckTest, FindsEveryKindOfForeignAndChangedEntry) {
  const std::pair<std::string, std::string> changes[] = {
      {"CREATE TABLE Stray (A)", "The table Stray does not belong to the schema"},
      {"CREATE VIEW Stray AS SELECT 1", "The view Stray does not belong to the schema"},
      {"CREATE INDEX Stray ON CldDay (Comment)", "The index Stray does not belong to the schema"},
      {"CREATE TRIGGER Stray BEFORE DELETE ON CldDay BEGIN SELECT 1; END",
       "The trigger Stray does not belong to the schema"},
      {"CREATE TRIGGER Stray INSTEAD OF INSERT ON CalendarDay BEGIN SELECT 1; END",
       "The trigger Stray does not belong to the schema"},
      {"CREATE TABLE Stray (A, T UNIQUE)",
       "The index sqlite_autoindex_Stray_1 does not belong to the schema"},
      {"ALTER TABLE CldSetting ADD Extra INTEGER", "The table CldSetting is not this program's"},
      {"ALTER TABLE CldSetting RENAME COLUMN FirstDay TO LastDay",
       "The table CldSetting is not this program's"},
      {"DROP VIEW CalendarList; CREATE VIEW CalendarList AS SELECT 1 AS Ccy, 2 AS Year",
       "The view CalendarList is not this program's"},
      {"DROP TRIGGER CldHistoryLosesNoEntry; CREATE TRIGGER CldHistoryLosesNoEntry BEFORE DELETE ON "
       "CldHistory"
       " BEGIN SELECT 1; END",
       "The trigger CldHistoryLosesNoEntry is not this program's"},
      {"PRAGMA application_id = 7", "The database has the mark 7; this program's is 1181053559"},
      {"PRAGMA journal_mode = DELETE", "The database has the journal mode delete; this program's is wal"},
      {"UPDATE ProcedureCatalogue SET Writes = 0 WHERE Name = 'CldIUMain'",
       "The procedure CldIUMain is not this program's"},
  };
  for (const auto& [change, problem] : changes) {
    SqliteDatabase database;
    database.Execute(change);
    EXPECT_THAT(CheckDatabase(database.Path()), Contains(problem)) << change;
  }
}

TEST_F(DatabaseCheckTest, FindsATableWhoseTextWasWrittenOver) {
  EXPECT_THAT(
      ProblemsAfterWritingTheSchema(
          "UPDATE sqlite_schema SET sql = replace(sql, 'CHECK (FirstDay BETWEEN 1 AND 7', 'CHECK (true')"
          " WHERE name = 'CldSetting'"),
      ElementsAre("The table CldSetting is not this program's", kNotLookedThrough));
}

TEST_F(DatabaseCheckTest, LooksAtNoRowsWhenAViewStandsForATable) {
  EXPECT_THAT(
      ProblemsAfter("DROP TABLE CldSetting; CREATE VIEW CldSetting AS WITH RECURSIVE Endless (N) AS"
                    " (SELECT 1 UNION ALL SELECT N + 1 FROM Endless) SELECT N AS FirstDay FROM Endless"),
      ElementsAre("The index CldSettingHasOneRow is missing", "The table CldSetting is missing",
                  "The view CldSetting does not belong to the schema",
                  "The rows are not looked at as long as something else stands for a table"));
}

TEST_F(DatabaseCheckTest, TakesStatisticsOfTheTablesForNoFault) {
  EXPECT_THAT(ProblemsAfter("ANALYZE"), IsEmpty());
}

TEST_F(DatabaseCheckTest, FindsAMissingAndAnotherHistory) {
  EXPECT_THAT(ProblemsAfter("DROP TRIGGER CldHistoryLosesNoEntry; ALTER TABLE CldHistory ADD Extra INTEGER"),
              ElementsAre("The table CldHistory is not this program's",
                          "The trigger CldHistoryLosesNoEntry is missing", kNotLookedThrough));
  EXPECT_THAT(ProblemsAfter("DROP TABLE CldHistory"), Contains("The table CldHistory is missing"));
}

TEST_F(DatabaseCheckTest, GoesOnWhenATableIsMissing) {
  const auto problems = ProblemsAfter("DROP TABLE CldSetting; DELETE FROM CldDay WHERE Day1 = 60");
  EXPECT_THAT(problems, Contains("The table CldSetting is missing"));
  EXPECT_THAT(problems, Contains("The calendar 978 of 2024 has 365 days instead of 366"));
}

TEST_F(DatabaseCheckTest, FindsMissingTypesAndRules) {
  EXPECT_THAT(
      ProblemsAfter("DELETE FROM CldHolidayType WHERE TID1 = 3; DELETE FROM CldHoliday"),
      IsSupersetOf({"The holiday type 3 is missing", "The built-in rule 1, a rule of type 1, is missing"}));
}

TEST_F(DatabaseCheckTest, FindsAMissingSetting) {
  EXPECT_THAT(ProblemsAfter("DELETE FROM CldSetting"), ElementsAre("CldSetting has 0 rows instead of one"));
}

TEST_F(DatabaseCheckTest, FindsACalendarWithoutItsDays) {
  EXPECT_THAT(ProblemsAfter("DELETE FROM CldDay WHERE Day1 = 366"),
              ElementsAre("The calendar 978 of 2024 has 365 days instead of 366"));
  EXPECT_THAT(ProblemsAfter("DELETE FROM CldDay"),
              ElementsAre("The calendar 978 of 2024 has 0 days instead of 366"));
}

TEST_F(DatabaseCheckTest, FindsACalendarOfNoCurrency) {
  EXPECT_THAT(ProblemsAfter("UPDATE DicCcy SET CcyType = 1 WHERE CcyID = 978"),
              Contains("The calendar 978 of 2024 is of no currency"));
}

TEST_F(DatabaseCheckTest, FindsMissingViewsIndexesAndTriggersOfTheHistory) {
  EXPECT_THAT(
      ProblemsAfter("DROP VIEW CalendarDay; DROP INDEX CldDayByDate; DROP TRIGGER CldHistoryRowLosesNoRow"),
      ElementsAre("The index CldDayByDate is missing", "The trigger CldHistoryRowLosesNoRow is missing",
                  "The view CalendarDay is missing"));
}

TEST_F(DatabaseCheckTest, FindsARuleBookOfNoCurrencyAndOneWithAGap) {
  EXPECT_THAT(ProblemsAfter("INSERT INTO CldBook VALUES (959, 'P', 'D', NULL);"
                            "INSERT INTO CldRecurrence VALUES (959, 2, 'A', 3, '01-01', NULL, NULL)"),
              IsSupersetOf({"The rule book of 959 is of no currency",
                            "The rule book of 959 has 1 rules, of which the last is number 2"}));
}

TEST_F(DatabaseCheckTest, FindsARowOfTheHistoryThatIsNoJsonOrOfNoEntry) {
  EXPECT_THAT(ProblemsAfter("INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName, OldRow)"
                            " VALUES (9, 1, 'CldDay', '{')"),
              ElementsAre("The row 1 of the entry 9 of the history is no JSON",
                          "The table CldHistoryRow has a row that refers to a missing row of CldHistory"));
}

TEST_F(DatabaseCheckTest, FindsDaysOfNoCalendar) {
  EXPECT_THAT(ProblemsAfter("DELETE FROM CldCalendar"),
              Contains("The day 366 of 2024 is of a calendar 978 that does not exist"));
}

TEST_F(DatabaseCheckTest, FindsADayWithAnotherDate) {
  EXPECT_THAT(ProblemsAfter("UPDATE CldDay SET ODate = '2024-03-01' WHERE Day1 = 60"),
              Contains("The day 60 of the calendar 978 of 2024 has the date 2024-03-01"));
}

TEST_F(DatabaseCheckTest, FindsADayWhoseRuleDoesNotExistOrIsOfAnotherType) {
  EXPECT_THAT(
      ProblemsAfter("UPDATE CldDay SET TID1 = 2, ID2 = 99 WHERE Day1 = 5"),
      Contains("The day 5 of the calendar 978 of 2024 has the type 2 and the rule 99, which does not exist"));
  EXPECT_THAT(ProblemsAfter("UPDATE CldDay SET TID1 = 3, ID2 = 1 WHERE Day1 = 5"),
              Contains("The day 5 of the calendar 978 of 2024 has the type 3 and the rule 1 of type 1"));
  EXPECT_THAT(ProblemsAfter("UPDATE CldDay SET TID1 = 4, ID2 = NULL WHERE Day1 = 5"),
              Contains("The day 5 of the calendar 978 of 2024 has the type 4 without a rule"));
}

TEST_F(DatabaseCheckTest, FindsWhatTheConstraintsWouldHaveRefused) {
  EXPECT_THAT(ProblemsAfter("UPDATE CldHoliday SET Del = 2"),
              Contains(HasSubstr("CHECK constraint failed in CldHoliday")));
}

}  // namespace
}  // namespace ferrowind::sqlite
