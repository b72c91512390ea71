// The year beside the days of the Calendars window, as an operator has it.
#include <QApplication>

#include <gmock/gmock.h>

#include "ferrowind/adapters/qt/year/year_pane.h"
#include "ferrowind/adapters/qt/year/year_widget.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/gui/windows/dialog_script.h"
#include "tests/gui/windows/operator_desk.h"
#include "tests/gui/windows/operator_hands.h"

namespace ferrowind::gui {
namespace {

using ::testing::ElementsAre;

constexpr std::int32_t kDollar = 840;

/// The Calendars window with the additions of planning, over the calendar USD 2028, closed on weekends.
class YearBesideDaysTest : public ::testing::Test {
 protected:
  YearBesideDaysTest() {
    desk_.Execute("DELETE FROM DicCcy WHERE Ccy NOT IN ('EUR', 'USD')");
    desk_.Call("CldIUMain", {kDollar, 2028, {}, {}, {}, {}, {}});
    desk_.Execute(
        "UPDATE CldDay SET TID1 = 2, ID2 = (SELECT min(ID2) FROM CldHoliday WHERE TID1 = 2) "
        "WHERE strftime('%w', ODate) IN ('0', '6')");
    platform_.additions = &additions_;
    control_.Show();
    Activate(Window());
    ClickNode(Find<QTreeView>(Window(), "tvCalendar"), {"USD", "2028"});
  }
  ~YearBesideDaysTest() override {
    EXPECT_TRUE(script_.IsPlayed());
    EXPECT_TRUE(control_.ForceClosing());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  [[nodiscard]] static QWidget& Window() {
    QWidget* window = WindowOnShow("fmCalendar");
    if (window == nullptr) throw std::runtime_error("the Calendars window is not open");
    return *window;
  }
  [[nodiscard]] static qt::YearPane& Year() { return Find<qt::YearWidget>(Window(), "yvDays").Pane(); }
  [[nodiscard]] static qt::GridView& Days() { return GridIn(Window()); }
  static void ShowYear() { Press(Days(), Qt::Key_Y, Qt::ControlModifier | Qt::ShiftModifier); }

  OperatorDesk desk_{OperatorDesk::Rules::kOfOffice};
  platform::Platform platform_ = desk_.Platform();
  almanac::DateTables tables_;
  PlanningWindows windows_{platform_, tables_};
  PlanningAdditions additions_{{platform_, tables_, windows_}};
  DialogScript script_;
  Calendar control_{platform_};
};

TEST_F(YearBesideDaysTest, ComesAndGoesByItsKeys) {
  EXPECT_FALSE(Year().isVisible());
  ShowYear();
  EXPECT_TRUE(Year().isVisible());
  EXPECT_EQ(Year().Days().Year(), 2028);
  ShowYear();
  EXPECT_FALSE(Year().isVisible());
}

TEST_F(YearBesideDaysTest, ShowsItsCurrentDayHoweverLateItGetsItsSize) {
  Window().resize(700, 420);
  WalkToRow(Days(), 200);
  ShowYear();
  QCoreApplication::sendPostedEvents();
  const auto is_in_sight = [] {
    return Year().viewport()->rect().contains(Year().RectOf(*Year().Cursor().Current()));
  };
  EXPECT_TRUE(is_in_sight());
  Window().resize(900, 380);
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(is_in_sight());
  Window().resize(1000, 500);
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(is_in_sight());
}

TEST_F(YearBesideDaysTest, GoesThroughTheGridByTheKeysOfTheYear) {
  WalkToRow(Days(), 104);
  ShowYear();
  EXPECT_EQ(Year().Cursor().Current()->day, 105);
  Year().setFocus();
  Press(Year(), Qt::Key_PageDown);
  EXPECT_EQ(Days().currentIndex().row(), 134);
  WalkToRow(Days(), 140);
  EXPECT_EQ(Year().Cursor().Current()->day, 141);
}

TEST_F(YearBesideDaysTest, ExceptsASelectedRangeFromTheMenuOfTheDay) {
  WalkToRow(Days(), 0);
  ShowYear();
  Year().setFocus();
  Press(Year(), Qt::Key_Right, Qt::ShiftModifier);
  script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_ExceptDays"); });
  script_.Expect("fmExceptMess", [](QWidget& dialog) {
    TypeInto(dialog, "txtMessage", "stocktaking");
    PressButton(dialog, "Except");
  });
  Press(Year(), Qt::Key_Return);
  EXPECT_THAT(desk_.Read("SELECT ODate, Comment FROM CldDay WHERE TID1 = 1 AND ID2 = 1 ORDER BY ODate"),
              ElementsAre("2028-01-01|stocktaking", "2028-01-02|stocktaking"));
  EXPECT_EQ(Year().Days().DescriptionOf(0, 1), "Working day by exception: stocktaking");
  EXPECT_EQ(Year().Cursor().Selected().size(), 2U);
}

}  // namespace
}  // namespace ferrowind::gui
