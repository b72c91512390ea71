#include <filesystem>
#include <fstream>

#include "ferrowind/adapters/sqlite/database_handle.h"

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The windows while the database file is taken away, locked by another program or overwritten.
class DatabaseTroubleTest : public WindowsTest {
 protected:
  DatabaseTroubleTest() { OpenDollar2028(); }

  [[nodiscard]] std::string AwayPath() const { return desk_.Folder() + "/away.db"; }
  void TakeAway() const { std::filesystem::rename(desk_.DatabasePath(), AwayPath()); }
  void BringBack() const { std::filesystem::rename(AwayPath(), desk_.DatabasePath()); }
  void PutGarbage() const { std::ofstream(desk_.DatabasePath(), std::ios::trunc) << std::string(20000, 'x'); }

  /// Everything works again: refresh, another calendar, an exception.
  void ExpectUsable() {
    ClickTool(Window(), "ID_Refresh");
    ClickTool(Window(), "ID_Expand");
    ClickNode(Tree(), {"USD", "2027"});
    EXPECT_EQ(RowsOf(Days()), 365);
    ClickNode(Tree(), {"USD", "2028"});
    EXPECT_EQ(RowsOf(Days()), 366);
    PickForDay(5, "ID_Except");
    EXPECT_EQ(CellText(Days(), 5, "Holiday name"), "Working day by exception");
    EXPECT_FALSE(desk_.Toolkit().UpdatesAreLocked());
    EXPECT_TRUE(desk_.IsDatabaseSound());
  }
};

TEST_F(DatabaseTroubleTest, KeepsTreeAndDaysWhileTheFileIsAway) {
  TakeAway();
  ClickTool(Window(), "ID_Refresh");
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("USD", "2028"));
  EXPECT_EQ(RowsOf(Days()), 366);
  ClickNode(Tree(), {"USD", "2027"});
  EXPECT_EQ(RowsOf(Days()), 366);
  BringBack();
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, ShowsNoHolidaysWindowWhileTheFileIsAway) {
  TakeAway();
  PickForDay(5, "ID_AssignMany");
  EXPECT_EQ(WindowOnShow("fmEnterHolidays"), nullptr);
  BringBack();
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, BeepsForANewCalendarWhileTheFileIsAway) {
  TakeAway();
  script_.Expect("fmSelectYear", [](QWidget& dialog) { ClickButton(dialog, "cmdCreate"); });
  ClickTool(Window(), "ID_New");
  EXPECT_EQ(desk_.Toolkit().Beeps(), 1);
  BringBack();
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, DoesNotOpenWithoutTheFileAndSaysWhat) {
  CloseByFrame(Window());
  TakeAway();
  ExpectMessage("Tessaro Calendar. Can't load currency");
  OpenCalendars();
  EXPECT_FALSE(IsOpen());
  BringBack();
  OpenDollar2028();
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, DoesNotOpenOverGarbageAndSaysWhat) {
  CloseByFrame(Window());
  TakeAway();
  PutGarbage();
  ExpectMessage("Tessaro Calendar. Can't load currency");
  OpenCalendars();
  EXPECT_FALSE(IsOpen());
  BringBack();
  OpenDollar2028();
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, DoesNotOpenWithoutTheProceduresAndSaysWhichIsMissing) {
  CloseByFrame(Window());
  std::filesystem::copy(desk_.DatabasePath(), AwayPath());
  desk_.Execute(
      "DELETE FROM ProcedureParameter WHERE ProcedureName = 'CldAllInfo';"
      "DELETE FROM ProcedureCatalogue WHERE Name = 'CldAllInfo'");
  ExpectMessage(HasSubstr("CldAllInfo"));
  ExpectMessage("Tessaro Calendar. Can't load relation currency to calendars");
  OpenCalendars();
  EXPECT_FALSE(IsOpen());
  BringBack();
  OpenDollar2028();
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, SurvivesGarbageInPlaceOfTheOpenDatabase) {
  TakeAway();
  PutGarbage();
  ClickTool(Window(), "ID_Refresh");
  PickForDay(5, "ID_Except");
  EXPECT_EQ(RowsOf(Days()), 366);
  BringBack();
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, ReportsTheFailureBeforeItsOwnMessageWhenARuleCannotBeRemoved) {
  InHolidays("ID_AssignMany", 5, [this](QWidget& holidays) {
    WalkToRow(GridIn(holidays), 0);
    TakeAway();
    AnswerQuestion("Are you sure ?", "Ok");
    ExpectMessage(AllOf(HasSubstr(desk_.DatabasePath()), HasSubstr("there is no such file")));
    ExpectMessage("Tessaro Calendar. Can't remove holiday");
    ClickButton(holidays, "cmdAction2");
    BringBack();
    EXPECT_GT(RowsOf(GridIn(holidays)), 0);
  });
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, TellsOfAnotherProgramThatHoldsTheDatabase) {
  InHolidays("ID_AssignMany", 5, [this](QWidget& holidays) {
    WalkToRow(GridIn(holidays), 0);
    sqlite::DatabaseHandle other(desk_.DatabasePath());
    other.Execute("BEGIN IMMEDIATE");
    AnswerQuestion("Are you sure ?", "Ok");
    ExpectMessage(HasSubstr("is locked by another program"));
    ExpectMessage("Tessaro Calendar. Can't remove holiday");
    ClickButton(holidays, "cmdAction2");
    other.Execute("ROLLBACK");
    AnswerQuestion("Are you sure ?", "Ok");
    WalkToRow(GridIn(holidays), 0);
    ClickButton(holidays, "cmdAction2");
  });
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldHoliday WHERE Del = 2"), "1");
  ExpectUsable();
}

TEST_F(DatabaseTroubleTest, LeavesTheDayAsItIsWhileAnotherProgramHoldsTheDatabase) {
  sqlite::DatabaseHandle other(desk_.DatabasePath());
  other.Execute("BEGIN IMMEDIATE");
  PickForDay(7, "ID_Except");
  EXPECT_EQ(CellText(Days(), 7, "Holiday name"), "");
  other.Execute("ROLLBACK");
  ExpectUsable();
}

}  // namespace
}  // namespace ferrowind::gui
