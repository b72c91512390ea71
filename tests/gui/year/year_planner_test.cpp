// The year planner as an operator has it.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QToolBar>

#include <gmock/gmock.h>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/year_pane.h"
#include "ferrowind/adapters/qt/year/year_widget.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kWeekendSql =
    "UPDATE CldDay SET TID1 = 2, ID2 = (SELECT min(ID2) FROM CldHoliday WHERE TID1 = 2) "
    "WHERE strftime('%w', ODate) IN ('0', '6')";

class YearPlannerTest : public WindowsTest {
 protected:
  YearPlannerTest() { desk_.Execute(kWeekendSql); }

  void OpenPlanner(const std::vector<std::int32_t>& currencies, int year) {
    RunHandler(desk_.Platform(), [&] { windows_.OpenYearPlanner(currencies, year); });
    Activate(Planner());
  }
  [[nodiscard]] static QWidget& Planner() {
    QWidget* window = WindowOnShow("fmYearPlanner");
    if (window == nullptr) throw std::runtime_error("the year planner is not open");
    return *window;
  }
  [[nodiscard]] static qt::YearPane& Pane() { return Find<qt::YearWidget>(Planner(), "yvYear").Pane(); }
  [[nodiscard]] static std::string Summary() {
    return Find<QLabel>(Planner(), "lblSummary").text().toStdString();
  }
  [[nodiscard]] static std::string Status() {
    return Find<QLabel>(Planner(), "sbYearPanel1").text().toStdString();
  }
  [[nodiscard]] std::vector<std::string> Exceptions() const {
    return desk_.Read(
        "SELECT ID1, ODate, Comment FROM CldDay WHERE TID1 = 1 AND ID2 = 1 ORDER BY ID1, ODate");
  }
  void ExceptWith(const std::string& reason) {
    script_.Expect("fmExceptMess", [reason](QWidget& dialog) {
      TypeInto(dialog, "txtMessage", reason);
      PressButton(dialog, "Except");
    });
  }

  almanac::DateTables tables_;
  PlanningWindows windows_{desk_.Platform(), tables_};
};

TEST_F(YearPlannerTest, ShowsAYearWithItsCounters) {
  OpenPlanner({kDollar}, 2028);
  EXPECT_EQ(Planner().windowTitle(), QStringLiteral("Year planner - USD 2028"));
  EXPECT_EQ(Summary(), "Weekends only: 260 working days, 106 weekend days, 0 holidays");
  EXPECT_TRUE(Pane().hasFocus());
  Planner().close();
}

TEST_F(YearPlannerTest, HasAnIconForEachOfItsTools) {
  OpenPlanner({kDollar}, 2028);
  for (const QAction* tool : Find<QToolBar>(Planner(), "tbYear").actions()) {
    EXPECT_EQ(tool->icon().isNull(), tool->isSeparator()) << tool->objectName().toStdString();
  }
  Planner().close();
}

TEST_F(YearPlannerTest, ExceptsARangeSelectedByKeysWithOneReasonAndOneEntryOfTheHistory) {
  OpenPlanner({kDollar}, 2028);
  const std::string before = desk_.ReadOne("SELECT count(*) FROM CldHistory");
  Press(Pane(), Qt::Key_Home, Qt::ControlModifier);
  Press(Pane(), Qt::Key_Right, Qt::ShiftModifier, 8);
  EXPECT_EQ(Status(), "9 days selected, 4 of them closed");
  script_.Expect("ID_YearDayMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_ExceptDays"); });
  ExceptWith("stocktaking");
  Press(Pane(), Qt::Key_Return);
  EXPECT_THAT(Exceptions(), ElementsAre("840|2028-01-01|stocktaking", "840|2028-01-02|stocktaking",
                                        "840|2028-01-08|stocktaking", "840|2028-01-09|stocktaking"));
  EXPECT_EQ(std::stoi(desk_.ReadOne("SELECT count(*) FROM CldHistory")), std::stoi(before) + 1);
  EXPECT_EQ(Status(), "4 days are working days by exception now");
  EXPECT_THAT(Summary(), HasSubstr("264 working days (4 by exception)"));
  Planner().close();
}

TEST_F(YearPlannerTest, ClosesADayOfAllCurrenciesByKeysAsAHolidayThatIsAnnounced) {
  CreateCalendar(kEuro, 2028);
  OpenPlanner({kDollar, kEuro}, 2028);
  const int before = std::stoi(desk_.ReadOne("SELECT count(*) FROM CldHistory"));
  // From the row of all on the first of January to the first Monday.
  Press(Pane(), Qt::Key_Home, Qt::ControlModifier);
  Press(Pane(), Qt::Key_Right, Qt::NoModifier, 2);
  EXPECT_EQ(Status(), "2 days selected, 0 of them closed");
  script_.Expect("fmCloseDays", [](QWidget& dialog) {
    EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("txtName"));
    for (const char letter : std::string("Mourning")) QTest::keyClick(dialog.focusWidget(), letter);
    EXPECT_EQ(Find<QLabel>(dialog, "lblSummary").text(),
              QStringLiteral("2 days will be closed, and entered in no rule book."));
    Press(*dialog.focusWidget(), Qt::Key_Return);
  });
  Press(Pane(), Qt::Key_L, Qt::ControlModifier);
  EXPECT_THAT(desk_.Read("SELECT d.ID1, d.ODate FROM CldDay d JOIN CldHoliday h ON h.ID2 = d.ID2 "
                         "WHERE h.Name1 = 'Mourning' AND h.TID1 = 4 ORDER BY d.ID1"),
              ElementsAre("840|2028-01-03", "978|2028-01-03"));
  EXPECT_EQ(std::stoi(desk_.ReadOne("SELECT count(*) FROM CldHistory")), before + 2);
  EXPECT_EQ(Status(), "2 days are closed now");
  Planner().close();
}

TEST_F(YearPlannerTest, TakesADayOutOfWhatIsClosedByTheSpaceBar) {
  OpenPlanner({kDollar}, 2028);
  Press(Pane(), Qt::Key_Home, Qt::ControlModifier);
  Press(Pane(), Qt::Key_Right, Qt::NoModifier, 2);
  Press(Pane(), Qt::Key_Right, Qt::ShiftModifier);
  script_.Expect("ID_YearDayMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_CloseDays"); });
  script_.Expect("fmCloseDays", [](QWidget& dialog) {
    TypeInto(dialog, "txtName", "Mourning");
    auto& days = Find<QTableView>(dialog, "tblDays");
    days.setFocus();
    Press(days, Qt::Key_Home);
    Press(days, Qt::Key_Space);
    EXPECT_EQ(Find<QLabel>(dialog, "lblSummary").text(),
              QStringLiteral("1 day will be closed, and entered in no rule book."));
    PressButton(dialog, "Close days");
  });
  Press(Pane(), Qt::Key_Return);
  EXPECT_THAT(desk_.Read("SELECT d.ODate FROM CldDay d JOIN CldHoliday h ON h.ID2 = d.ID2 "
                         "WHERE h.Name1 = 'Mourning'"),
              ElementsAre("2028-01-04"));
  Planner().close();
}

TEST_F(YearPlannerTest, ShowsSeveralCurrenciesWithADayForEachAndForAll) {
  CreateCalendar(kEuro, 2028);
  OpenPlanner({kDollar, kEuro}, 2028);
  EXPECT_EQ(Pane().Days().CalendarCount(), 3);
  EXPECT_EQ(Summary(), "Open together on 260 days as far as known; not prepared: EUR; weekends only: USD");
  // A day of the row of all stands for that day of each.
  Press(Pane(), Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Status(), "2 days selected, 1 of them closed");
  Planner().close();
}

TEST_F(YearPlannerTest, ShowsWhatIsTyped) {
  OpenPlanner({kDollar}, 2028);
  TypeInto(Planner(), "txtCurrencies", "eur, usd");
  TypeInto(Planner(), "txtYear", "2026");
  Press(Find<QLineEdit>(Planner(), "txtYear"), Qt::Key_Return);
  EXPECT_EQ(Planner().windowTitle(), QStringLiteral("Year planner - EUR, USD 2026"));
  EXPECT_THAT(Summary(), HasSubstr("no calendar of USD"));
  Planner().close();
}

TEST_F(YearPlannerTest, SaysWhatIsWrongWithWhatIsTypedAndKeepsTheYear) {
  OpenPlanner({kDollar}, 2028);
  const auto refuse = [&](const char* box, const std::string& text, const std::string& part) {
    TypeInto(Planner(), box, text);
    Press(Find<QLineEdit>(Planner(), box), Qt::Key_Return);
    EXPECT_THAT(Summary(), HasSubstr(part));
    EXPECT_TRUE(Find<QLineEdit>(Planner(), box).hasFocus());
    EXPECT_EQ(Find<QLineEdit>(Planner(), box).selectedText().toStdString(), text);
    EXPECT_EQ(Planner().windowTitle(), QStringLiteral("Year planner - USD 2028"));
  };
  refuse("txtCurrencies", "USD XYZ", "XYZ");
  refuse("txtCurrencies", " , ", "Name at least one currency");
  TypeInto(Planner(), "txtCurrencies", "USD");
  refuse("txtYear", "28", "\"28\" is no year from 1900 to 3000");
  Planner().close();
}

TEST_F(YearPlannerTest, GoesFromYearToYear) {
  OpenPlanner({kDollar}, 2028);
  ClickTool(Planner(), "ID_YearBefore");
  EXPECT_EQ(Planner().windowTitle(), QStringLiteral("Year planner - USD 2027"));
  ClickTool(Planner(), "ID_YearAfter");
  ClickTool(Planner(), "ID_YearAfter");
  EXPECT_EQ(Summary(), "There is no such calendar");
  Planner().close();
}

TEST_F(YearPlannerTest, AsksForAPrinterAndPrintsNothingWithoutOne) {
  OpenPlanner({kDollar}, 2028);
  script_.Expect("fmPrint", [](QWidget& dialog) { Press(dialog, Qt::Key_Escape); });
  ClickTool(Planner(), "ID_PrintYear");
  EXPECT_TRUE(script_.IsPlayed());
  EXPECT_TRUE(Planner().isVisible());
  Planner().close();
}

TEST_F(YearPlannerTest, LetsTheHostCloseItWhileItAsksForAPrinter) {
  OpenPlanner({kDollar}, 2028);
  script_.Expect("fmPrint", [this](QWidget&) { EXPECT_TRUE(windows_.CloseAll()); });
  ClickTool(Planner(), "ID_PrintYear");
  EXPECT_EQ(WindowOnShow("fmYearPlanner"), nullptr);
  EXPECT_EQ(WindowOnShow("fmPrint"), nullptr);
}

TEST_F(YearPlannerTest, ClosesByEscape) {
  OpenPlanner({kDollar}, 2028);
  Press(Pane(), Qt::Key_Escape);
  EXPECT_EQ(WindowOnShow("fmYearPlanner"), nullptr);
}

TEST_F(YearPlannerTest, GoesFromYearToYearAndClosesByKeys) {
  OpenPlanner({kDollar}, 2028);
  Press(Pane(), Qt::Key_PageUp, Qt::AltModifier);
  EXPECT_EQ(Planner().windowTitle(), QStringLiteral("Year planner - USD 2027"));
  Press(Pane(), Qt::Key_PageDown, Qt::AltModifier);
  EXPECT_EQ(Planner().windowTitle(), QStringLiteral("Year planner - USD 2028"));
  Press(Pane(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(WindowOnShow("fmYearPlanner"), nullptr);
}

}  // namespace
}  // namespace ferrowind::gui
