// Finding days, and following what others change, in the Calendars window of the desktop.

#include <QComboBox>
#include <QDate>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "ferrowind/adapters/sqlite/engine.h"

#include "tests/gui/host/host_desk.h"

namespace ferrowind::gui {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::EndsWith;
using ::testing::HasSubstr;

class Finding : public HostTest {
 protected:
  [[nodiscard]] QFrame& Panel(const char* name) const { return Find<QFrame>(Calendars(), name); }
  [[nodiscard]] std::string LabelText(const char* name) const {
    return Find<QLabel>(Calendars(), name).text().toStdString();
  }
  void PressShortcut(Qt::Key key) const { Press(Days(), key, Qt::ControlModifier); }
  /// What another program does, of which this one is not told.
  void ExceptElsewhere(const QDate& date) const {
    sqlite::Engine engine;
    const auto outcome = engine.Connect("sqlite:" + DatabasePath())
                             ->Call("CldIUMain", {840, date.year(), 1, 1, date.dayOfYear(), {}, "Ferry"});
    ASSERT_EQ(outcome.return_value, 0);
  }
};

TEST_F(Finding, LeavesOutDaysWhileTheOperatorTypes) {
  OpenCalendars();
  EXPECT_FALSE(Panel("pnlFind").isVisible());
  PressShortcut(Qt::Key_F);
  EXPECT_TRUE(Panel("pnlFind").isVisible());
  auto& text = Find<QLineEdit>(Calendars(), "txtFind");
  EXPECT_TRUE(text.hasFocus());
  QTest::keyClicks(&text, QStringLiteral("april wednesday"));
  EXPECT_EQ(RowsOf(Days()), 4);
  EXPECT_THAT(ColumnTexts(Days(), "Date"), Each(EndsWith("2028 Wed")));
  EXPECT_THAT(ColumnTexts(Days(), "Weekday"), Each("Wednesday"));
  EXPECT_EQ(LabelText("lblFound"), "4 of 366 days");
  Press(text, Qt::Key_Escape);
  EXPECT_FALSE(Panel("pnlFind").isVisible());
  EXPECT_EQ(RowsOf(Days()), 366);
  EXPECT_TRUE(Days().hasFocus());
  EXPECT_EQ(CellText(Days(), Days().currentIndex().row(), "Day of year"), "96") << "5 April";
  EXPECT_TRUE(Days().viewport()->rect().contains(Days().visualRect(Days().currentIndex()).center()));
}

TEST_F(Finding, ShowsWhatATypedDateMeansAndGoesThere) {
  OpenCalendars();
  script_.Expect("fmGoToDate", [](QWidget& dialog) {
    TypeInto(dialog, "txtDate", "14 Apr");
    EXPECT_EQ(Find<QLabel>(dialog, "lblMeaning").text(), QStringLiteral("Friday 14 April 2028"));
    TypeInto(dialog, "txtDate", "31 April");
    EXPECT_EQ(Find<QLabel>(dialog, "lblMeaning").text(),
              QStringLiteral("There is no 31 April: the month has 30 days."));
    TypeInto(dialog, "txtDate", "2028-05-02");
    Press(Find<QLineEdit>(dialog, "txtDate"), Qt::Key_Return);
  });
  PressShortcut(Qt::Key_D);
  ReturnToCalendars();
  EXPECT_THAT(CellText(Days(), Days().currentIndex().row(), "Date"), "2 May 2028 Tue");
  EXPECT_EQ(CellText(Days(), Days().currentIndex().row(), "Day of year"), "123");
}

TEST_F(Finding, SaysWhoChangedTheDaysOnShowAndLeavesThemUntilTheOperatorWantsThem) {
  OpenCalendars();
  WalkToRow(Days(), 5);
  ExceptElsewhere(QDate(2028, 4, 14));
  ASSERT_TRUE(QTest::qWaitFor([this] { return Panel("pnlFollow").isVisible(); }, 10000));
  EXPECT_THAT(LabelText("lblFollow"), AllOf(HasSubstr(" changed this calendar, "), EndsWith(".")));
  EXPECT_EQ(CellText(Days(), 104, "Holiday name"), "");
  ClickButton(Calendars(), "cmdFollow");
  EXPECT_FALSE(Panel("pnlFollow").isVisible());
  EXPECT_EQ(CellText(Days(), 104, "Comment"), "Ferry");
  EXPECT_EQ(Days().currentIndex().row(), 5);
}

TEST_F(Finding, TellsNothingOfTheOperatorsOwnChanges) {
  OpenCalendars();
  PickForDay(104, "ID_Except");
  QTest::qWait(2500);
  EXPECT_FALSE(Panel("pnlFollow").isVisible());
}

TEST_F(Finding, OpensTheWindowAsItWasLeft) {
  OpenCalendars();
  ClickTool(Calendars(), "ID_ShowHide");
  Days().SetFirstVisibleRow(200);
  const int first = Days().FirstVisibleRow();
  ASSERT_GT(first, 100);
  Calendars().close();
  WorkOn("sqlite:" + DatabasePath());
  back_office_->OpenCalendars();
  Activate(Calendars());
  QCoreApplication::processEvents();
  EXPECT_EQ(RowsOf(Days()), 366);
  EXPECT_EQ(Days().FirstVisibleRow(), first);
  EXPECT_THAT(SelectedNode(Find<QTreeView>(Calendars(), "tvCalendar")),
              ::testing::ElementsAre("USD", "2028"));
  ClickTool(Calendars(), "ID_ShowHide");
}

}  // namespace
}  // namespace ferrowind::gui
