// The constraints that keep wrong rows out, whoever writes them.

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST_F(SchemaTest, ACatalogueRowIsWhatTheEngineCanRead) {
  ExpectRefused("INSERT INTO ProcedureCatalogue VALUES ('cldgetmain', 0, 'SELECT 1')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('CldGetMain', 3, '@New', 'int64', 'in')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('CldGetMain', 3, 'New', 'int32', 'in')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('CldGetMain', 3, '@id1', 'int32', 'in')");
  ExpectRefused("INSERT INTO ProcedureParameter VALUES ('NoSuchOne', 0, '@RETURN_VALUE', 'int32', 'return')");
}

}  // namespace
}  // namespace ferrowind::sqlite
