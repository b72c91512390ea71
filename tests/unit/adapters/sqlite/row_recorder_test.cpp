#include "ferrowind/adapters/sqlite/row_recorder.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class RowRecorderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(contract::ProcedureCaller(file_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
    file_.Execute("INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Sunday', 2, 1)");
  }

  /// The rows that `sql` replaces, each as "table|ID1|Year1|Day1|ID2|Position|old row".
  std::vector<std::string> RowsReplacedBy(const std::string& sql) {
    DatabaseHandle database(file_.Path());
    RowRecorder recorder(database);
    database.Execute(sql.c_str());
    std::vector<std::string> texts;
    for (const ReplacedRow& row : recorder.TakeRows()) {
      texts.emplace_back(row.table);
      for (const auto& key : row.key) texts.back() += "|" + platform::ToTextOrEmpty(key);
      texts.back() += "|" + platform::ToTextOrEmpty(row.old_row);
    }
    return texts;
  }

  contract::SqliteDatabase file_;
};

TEST_F(RowRecorderTest, KeepsARowAsItWasBeforeTheFirstChange) {
  EXPECT_THAT(RowsReplacedBy("UPDATE CldDay SET TID1 = 2, ID2 = 2 WHERE Day1 = 5;"
                             "UPDATE CldDay SET Comment = 'x' WHERE Day1 IN (4, 5)"),
              ElementsAre(R"(CldDay|978|2026|5|||{"TID1" : 1, "ID2" : null, "Comment" : null})",
                          R"(CldDay|978|2026|4|||{"TID1" : 1, "ID2" : null, "Comment" : null})"));
}

TEST_F(RowRecorderTest, KeepsNoRowThatIsAsItWas) {
  EXPECT_THAT(RowsReplacedBy("UPDATE CldDay SET Comment = NULL;"
                             "UPDATE CldDay SET Comment = 'x' WHERE Day1 = 5;"
                             "UPDATE CldDay SET Comment = NULL WHERE Day1 = 5;"
                             "INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (3, 'Monday', 2, 2);"
                             "DELETE FROM CldHoliday WHERE ID2 = 3;"
                             "DELETE FROM CldHoliday WHERE ID2 = 2;"
                             "INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Sunday', 2, 1);"
                             "UPDATE CldSetting SET FirstDay = 2"),
              IsEmpty());
}

TEST_F(RowRecorderTest, KeepsAddedAndRemovedRowsOfEveryTable) {
  EXPECT_THAT(
      RowsReplacedBy("INSERT INTO CldBook VALUES (978, 'P', 'D', 2015);"
                     "INSERT INTO CldRecurrence VALUES (978, 1, 'A', 3, '01-01', NULL, NULL);"
                     "DELETE FROM CldHoliday WHERE ID2 = 2;"
                     "UPDATE DicCcy SET LastDay = '2027-12-31' WHERE CcyID = 978"),
      ElementsAre(
          "CldBook|978|||||", "CldRecurrence|978||||1|",
          R"(CldHoliday||||2||{"Name1" : "Sunday", "Comment" : null, "TID1" : 2, "D1" : null, "MY" : null, )"
          R"("MD" : null, "WD" : 1, "Del" : null})",
          R"(DicCcy|978|||||{"Ccy" : "EUR", "CcyType" : 0, "Name" : "Euro", "LastDay" : null})"));
  EXPECT_THAT(RowsReplacedBy("DELETE FROM CldRecurrence; DELETE FROM CldBook"),
              ElementsAre(R"(CldRecurrence|978||||1|{"Name1" : "A", "TID1" : 3, "Expression" : "01-01", )"
                          R"("Comment" : null, "MovedName" : null})",
                          R"(CldBook|978|||||{"Publisher" : "P", "Document" : "D", "FromYear" : 2015})"));
}

TEST_F(RowRecorderTest, KeepsOfACalendarThatGoesTheDaysThatCarriedSomething) {
  file_.Execute("UPDATE CldDay SET TID1 = 2, ID2 = 2, Comment = 'x' WHERE Day1 = 5");
  EXPECT_THAT(RowsReplacedBy("DELETE FROM CldDay; DELETE FROM CldCalendar"),
              ElementsAre(R"(CldDay|978|2026|5|||{"TID1" : 2, "ID2" : 2, "Comment" : "x"})",
                          "CldCalendar|978|2026||||{}"));
}

TEST_F(RowRecorderTest, KeepsOfACalendarThatIsMadeNoDays) {
  EXPECT_THAT(RowsReplacedBy("INSERT INTO CldCalendar VALUES (978, 2027);"
                             "INSERT INTO CldDay VALUES (978, 2027, 1, '2027-01-01', 1, NULL, NULL);"
                             "UPDATE CldDay SET TID1 = 2, ID2 = 2 WHERE Year1 = 2027"),
              ElementsAre("CldCalendar|978|2027||||"));
}

TEST(RowRecorder, FailsWhereRowsTakeMoreMemoryThanACallHas) {
  DatabaseHandle database = DatabaseHandle::InMemory();
  database.Execute(std::string(DeliveredTables()).c_str());
  database.Execute(
      "PRAGMA foreign_keys = OFF;"
      " INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1) VALUES (978, 2026, 1, '2026-01-01', 1)");
  const char* const change = "UPDATE CldDay SET Comment = printf('%.400000c', 'x')";
  RowRecorder recorder(database, 1);
  database.Execute(change);
  EXPECT_EQ(recorder.TakeRows().size(), 1U);
  database.Execute(change);
  EXPECT_THAT(contract::FailureTextOf([&] { (void)recorder.TakeRows(); }), HasSubstr("more than 1 MB"));
}

}  // namespace
}  // namespace ferrowind::sqlite
