// The history as an operator has it: the real windows over a real database.
#include <QDate>
#include <QLabel>
#include <QLineEdit>

#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "host/delivery/delivered_tables.h"
#include "tests/gui/planning/table_texts.h"
#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

/// Over a database with the calendars EUR 2026, USD 2027 and USD 2028.
class HistoryTest : public WindowsTest {
 protected:
  HistoryTest() {
    desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 105, {}, "Stock-taking"});
    desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 106, {}, "Move to the new building, third floor"});
  }
  ~HistoryTest() override {
    EXPECT_TRUE(windows_.CloseAll());
    qt::ApplyTheme(*qApp, qt::Theme::kLight);
  }

  QWidget& OpenHistory(const planning::HistoryFilter& filter = {kDollar, 2028}) {
    RunHandler(desk_.Platform(), [&] { windows_.OpenHistory(filter); });
    return OnShow("fmHistory");
  }
  static QWidget& OnShow(const std::string& name) {
    QWidget* const window = WindowOnShow(name);
    if (window == nullptr) throw std::runtime_error(name + " is not open");
    Activate(*window);
    return *window;
  }
  static qt::TableView& Entries(QWidget& window) { return Find<qt::TableView>(window, "tblEntries"); }
  static qt::TableView& Changes(QWidget& window) { return Find<qt::TableView>(window, "tblChanges"); }
  [[nodiscard]] std::string ReasonOf(int day) const {
    return desk_.ReadOne("SELECT Comment FROM CldDay WHERE ID1 = 840 AND Year1 = 2028 AND Day1 = " +
                         std::to_string(day));
  }

  PlanningWindows windows_{desk_.Platform(), host::DeliveredDateTables()};
};

TEST_F(HistoryTest, IsLookedAtUndoneAndRedoneByKeyboard) {
  QWidget& window = OpenHistory();
  qt::TableView& entries = Entries(window);
  EXPECT_THAT(
      RowTexts(entries),
      ElementsAre(
          EndsWith("| USD 2028 | Excepted Saturday 15 April 2028: Move to the new building, third floor"),
          EndsWith("| USD 2028 | Excepted Friday 14 April 2028: Stock-taking"),
          EndsWith("| USD 2028 | Created the calendar USD 2028")));
  EXPECT_THAT(RowTexts(Changes(window)),
              ElementsAre("Saturday 15 April 2028 | Working day | Working day by exception: Move to the new "
                          "building, third floor"));
  Picture(window, "history");
  TabTo(entries);
  Press(entries, Qt::Key_Down);
  EXPECT_THAT(RowTexts(Changes(window)),
              ElementsAre("Friday 14 April 2028 | Working day | Working day by exception: Stock-taking"));
  auto& undo = Find<QPushButton>(window, "cmdUndo");
  EXPECT_EQ(undo.accessibleName().toStdString(), "Undo: Excepted Friday 14 April 2028: Stock-taking");
  TabTo(undo);
  Press(undo, Qt::Key_Space);
  EXPECT_EQ(ReasonOf(105), "-");
  EXPECT_THAT(RowText(entries, 0), EndsWith("| Undid: Excepted Friday 14 April 2028: Stock-taking"));
  EXPECT_THAT(RowText(entries, 2), EndsWith("| Excepted Friday 14 April 2028: Stock-taking (undone)"));
  Picture(window, "history-undone");
  auto& redo = Find<QPushButton>(window, "cmdRedo");
  TabTo(redo);
  Press(redo, Qt::Key_Space);
  EXPECT_EQ(ReasonOf(105), "Stock-taking");
  Press(entries, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ReasonOf(105), "-");
  Press(entries, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(ReasonOf(105), "Stock-taking");
  EXPECT_EQ(desk_.Toolkit().Beeps(), 0);
  EXPECT_TRUE(desk_.IsDatabaseSound());
  Press(entries, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(HistoryTest, SaysWhyAChangeStays) {
  desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 105, {}, "Audit"});
  QWidget& window = OpenHistory();
  Press(Entries(window), Qt::Key_Down, {}, 2);
  ClickButton(window, "cmdUndo");
  EXPECT_THAT(Find<QLabel>(window, "lblRemark").text().toStdString(),
              HasSubstr("The newest change of USD 2028 is \"Excepted Friday 14 April 2028: Audit\""));
  Picture(window, "history-refused");
  EXPECT_EQ(ReasonOf(105), "Audit");
}

TEST_F(HistoryTest, ShowsTheCalendarAsAChangeLeftIt) {
  QWidget& window = OpenHistory();
  EXPECT_TRUE(Entries(window).hasFocus());
  Press(Entries(window), Qt::Key_Down);
  Press(Entries(window), Qt::Key_Return);
  QWidget& then = OnShow("fmCalendarThen");
  auto& days = Find<qt::TableView>(then, "tblDays");
  EXPECT_EQ(days.Model()->rowCount(), 366);
  EXPECT_EQ(RowText(days, 104), "Friday 14 April 2028 | Working day by exception | Stock-taking");
  EXPECT_EQ(RowText(days, 105), "Saturday 15 April 2028 | Working day | ");
  Picture(then, "calendar-then");
  Press(days, Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(then.isVisible());
}

TEST_F(HistoryTest, ShowsTheCalendarOfAMomentThatIsTyped) {
  QWidget& window = OpenHistory();
  script_.Expect("fmAsOf", [](QWidget& question) {
    EXPECT_TRUE(Find<QLineEdit>(question, "txtDate").hasFocus());
    Picture(question, "as-of");
    TypeInto(question, "txtDate", "1 January 2000");
    ClickButton(question, "cmdShow");
    EXPECT_EQ(Find<QLabel>(question, "lblMeaning").text().toStdString(), "There was no such calendar then.");
    Picture(question, "as-of-before-all");
    // By keyboard back to today, when all was done.
    TypeInto(question, "txtDate", QDate::currentDate().toString(Qt::ISODate).toStdString());
    Press(question, Qt::Key_Return);
  });
  Press(Entries(window), Qt::Key_D, Qt::ControlModifier);
  QWidget& then = OnShow("fmCalendarThen");
  EXPECT_EQ(RowText(Find<qt::TableView>(then, "tblDays"), 105),
            "Saturday 15 April 2028 | Working day by exception | Move to the new building, third floor");
  EXPECT_TRUE(then.windowTitle().startsWith("USD 2028 as of ")) << then.windowTitle().toStdString();
}

TEST_F(HistoryTest, IsReadOnASmallScreenAndInTheDark) {
  qt::ApplyTheme(*qApp, qt::Theme::kDark);
  QWidget& window = OpenHistory({});
  window.resize(790, 560);
  QCoreApplication::processEvents();
  EXPECT_LE(window.minimumSizeHint().width(), 790);
  EXPECT_LE(window.minimumSizeHint().height(), 560);
  for (const auto* button : window.findChildren<QPushButton*>()) {
    if (!button->isVisible()) continue;
    EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->objectName().toStdString();
  }
  Picture(window, "history-dark-small");
}

/// The Calendars window with the additions of planning.
class HistoryToolsTest : public HistoryTest {
 protected:
  HistoryToolsTest() {
    with_additions_.additions = &additions_;
    control_ = std::make_unique<Calendar>(with_additions_);
    control_->Show();
    Activate(Window());
    ClickNode(Tree(), {"USD", "2028"});
  }
  ~HistoryToolsTest() override {
    EXPECT_TRUE(control_->ForceClosing());
    control_.reset();
  }

  platform::Platform with_additions_ = desk_.Platform();
  PlanningAdditions additions_{{with_additions_, host::DeliveredDateTables(), windows_}};
  std::unique_ptr<Calendar> control_;
};

TEST_F(HistoryToolsTest, UndoOnesOwnLastChangeByKeyboard) {
  Picture(Window(), "calendars-with-history");
  WalkToRow(Days(), 105);
  AnswerQuestion("Undo in USD 2028: Excepted Saturday 15 April 2028: Move to the new building, third floor?",
                 "Undo");
  Press(Days(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ReasonOf(106), "-");
  Activate(Window());
  AnswerQuestion("Undo in USD 2028: Excepted Friday 14 April 2028: Stock-taking?", "Undo");
  Press(Days(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ReasonOf(105), "-");
  ClickTool(Window(), "ID_History");
  EXPECT_THAT(RowText(Entries(OnShow("fmHistory")), 0),
              EndsWith("| USD 2028 | Undid: Excepted Friday 14 April 2028: Stock-taking"));
  EXPECT_TRUE(desk_.IsDatabaseSound());
}

}  // namespace
}  // namespace ferrowind::gui
