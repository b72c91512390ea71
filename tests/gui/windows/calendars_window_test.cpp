#include <QApplication>
#include <QTest>

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::ElementsAre;

using CalendarsWindowTest = WindowsTest;

/// The texts of the tree's nodes at the top.
std::vector<std::string> Roots(const QTreeView& tree) {
  std::vector<std::string> texts;
  for (int row = 0; row < tree.model()->rowCount(); ++row) {
    texts.push_back(tree.model()->index(row, 0).data().toString().toStdString());
  }
  return texts;
}

std::vector<std::string> Years(const QTreeView& tree, const std::string& currency) {
  std::vector<std::string> texts;
  for (int row = 0; row < tree.model()->rowCount(); ++row) {
    const QModelIndex root = tree.model()->index(row, 0);
    if (root.data().toString().toStdString() != currency) continue;
    for (int child = 0; child < tree.model()->rowCount(root); ++child) {
      texts.push_back(tree.model()->index(child, 0, root).data().toString().toStdString());
    }
  }
  return texts;
}

TEST_F(CalendarsWindowTest, ListsTheCurrenciesWithTheirCalendarsBelow) {
  OpenCalendars();
  EXPECT_EQ(Window().windowTitle().toStdString(), "Calendars");
  EXPECT_THAT(Roots(Tree()), ::testing::UnorderedElementsAre("EUR", "GBP", "USD"));
  EXPECT_THAT(Years(Tree(), "USD"), ElementsAre("2027", "2028"));
  EXPECT_THAT(Years(Tree(), "EUR"), ElementsAre("2026"));
  EXPECT_THAT(Years(Tree(), "GBP"), ElementsAre());
}

TEST_F(CalendarsWindowTest, EnablesTheGridsToolsOnlyWhileACalendarIsShown) {
  const char* grid_tools[] = {"ID_Copy", "ID_ShowHide", "ID_ExpSel", "ID_ExpandGrid", "ID_CollapseGrid"};
  OpenCalendars();
  for (const char* tool : grid_tools) EXPECT_FALSE(IsToolEnabled(Window(), tool)) << tool;
  EXPECT_FALSE(Days().isEnabled());
  ClickNode(Tree(), {"USD", "2028"});
  for (const char* tool : grid_tools) EXPECT_TRUE(IsToolEnabled(Window(), tool)) << tool;
  EXPECT_TRUE(Days().isEnabled());
  ClickNode(Tree(), {"USD"});
  for (const char* tool : grid_tools) EXPECT_FALSE(IsToolEnabled(Window(), tool)) << tool;
  EXPECT_FALSE(Days().isEnabled());
  EXPECT_EQ(RowsOf(Days()), 0);
  for (const char* tool : {"ID_New", "ID_Expand", "ID_Collapse"}) EXPECT_TRUE(IsToolEnabled(Window(), tool));
}

TEST_F(CalendarsWindowTest, ShowsTheCalendarThatTheArrowKeysComeTo) {
  OpenCalendars();
  WalkToNode(Tree(), {"USD", "2027"});
  EXPECT_EQ(RowsOf(Days()), 365);
  Press(Tree(), Qt::Key_Down);
  EXPECT_EQ(RowsOf(Days()), 366);
}

TEST_F(CalendarsWindowTest, RefreshesFromTheDatabaseAndKeepsTheSelectedCalendar) {
  OpenDollar2028();
  desk_.Call("CldIUMain", {kDollar, 2028, 3, 4, 1, platform::Date(2028, 1, 1), {}});
  CreateCalendar(kEuro, 2030);
  ClickTool(Window(), "ID_Refresh");
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("USD", "2028"));
  EXPECT_THAT(Years(Tree(), "EUR"), ElementsAre("2026", "2030"));
  EXPECT_EQ(CellText(Days(), 0, "Holiday name"), "New Year's Day");
}

TEST_F(CalendarsWindowTest, RefreshesOnItsKey) {
  OpenDollar2028();
  CreateCalendar(kEuro, 2031);
  Press(Tree(), Qt::Key_F5);
  EXPECT_THAT(Years(Tree(), "EUR"), ElementsAre("2026", "2031"));
}

TEST_F(CalendarsWindowTest, StaysUsableWhenTheSelectedCalendarHasVanished) {
  OpenDollar2028();
  desk_.Execute("DELETE FROM CldDay WHERE Year1 = 2028; DELETE FROM CldCalendar WHERE Year1 = 2028");
  ClickTool(Window(), "ID_Refresh");
  EXPECT_THAT(Years(Tree(), "USD"), ElementsAre("2027"));
  ClickNode(Tree(), {"EUR"});
  ClickTool(Window(), "ID_Expand");
  ClickNode(Tree(), {"USD", "2027"});
  EXPECT_EQ(RowsOf(Days()), 365);
}

TEST_F(CalendarsWindowTest, SurvivesFiveHundredRapidRefreshes) {
  OpenDollar2028();
  WalkToRow(Days(), 200);
  TabTo(Tree());
  Press(Tree(), Qt::Key_F5, {}, 500);
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("USD", "2028"));
  EXPECT_EQ(RowsOf(Days()), 366);
  EXPECT_EQ(Days().currentIndex().row(), 200);
  EXPECT_FALSE(desk_.Toolkit().UpdatesAreLocked());
}

TEST_F(CalendarsWindowTest, ExpandsAndCollapsesAllCurrencies) {
  OpenCalendars();
  ClickTool(Window(), "ID_Expand");
  for (int row = 0; row < 3; ++row) {
    EXPECT_TRUE(Tree().isExpanded(Tree().model()->index(row, 0))) << row;
  }
  ClickNode(Tree(), {"USD", "2027"});
  ClickTool(Window(), "ID_Collapse");
  for (int row = 0; row < 3; ++row) EXPECT_FALSE(Tree().isExpanded(Tree().model()->index(row, 0))) << row;
  // The calendar is out of sight, so its currency is selected, and the grid follows.
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("USD"));
  EXPECT_EQ(RowsOf(Days()), 0);
}

TEST_F(CalendarsWindowTest, DescribesTheToolUnderTheMouseInTheStatusBar) {
  OpenCalendars();
  EXPECT_EQ(StatusText(), "");
  auto& refresh = Find<QWidget>(Window(), "ID_Refresh");
  QTest::mouseMove(&refresh, refresh.rect().center());
  EXPECT_EQ(StatusText(), "Refresh all");
  auto& expand = Find<QWidget>(Window(), "ID_Expand");
  QTest::mouseMove(&expand, expand.rect().center());
  EXPECT_EQ(StatusText(), "Expand currency nodes");
  QTest::mouseMove(&Tree(), Tree().rect().center());
  EXPECT_EQ(StatusText(), "");
}

TEST_F(CalendarsWindowTest, WithoutCurrenciesHasAnEmptyTreeAndNoTreeTools) {
  desk_.Execute("DELETE FROM CldDay; DELETE FROM CldCalendar; DELETE FROM DicCcy");
  OpenCalendars();
  EXPECT_EQ(Tree().model()->rowCount(), 0);
  for (const char* tool : {"ID_New", "ID_Expand", "ID_Collapse"}) {
    EXPECT_FALSE(IsToolEnabled(Window(), tool)) << tool;
  }
  EXPECT_TRUE(IsToolEnabled(Window(), "ID_Refresh"));
  ClickTool(Window(), "ID_Refresh");
  TabTo(Tree());
  Press(Tree(), Qt::Key_Down);
  EXPECT_FALSE(Days().isEnabled());
}

TEST_F(CalendarsWindowTest, DoesNotOpenForACalendarOfACurrencyThatIsNotListed) {
  desk_.Execute("UPDATE DicCcy SET CcyType = 1 WHERE Ccy = 'USD'");
  ExpectMessage("Tessaro Calendar. Can't load relation currency to calendars");
  OpenCalendars();
  EXPECT_FALSE(IsOpen());
  desk_.Execute("UPDATE DicCcy SET CcyType = 0 WHERE Ccy = 'USD'");
  OpenCalendars();
  EXPECT_TRUE(IsOpen());
}

TEST_F(CalendarsWindowTest, KeepsWhatItHasWhenARefreshFindsACalendarOfACurrencyThatIsNotListed) {
  OpenDollar2028();
  desk_.Execute("UPDATE DicCcy SET CcyType = 1 WHERE Ccy = 'USD'");
  ClickTool(Window(), "ID_Refresh");
  EXPECT_THAT(Roots(Tree()), ::testing::UnorderedElementsAre("EUR", "GBP"));
  desk_.Execute("UPDATE DicCcy SET CcyType = 0 WHERE Ccy = 'USD'");
  ClickTool(Window(), "ID_Refresh");
  ClickNode(Tree(), {"USD", "2028"});
  EXPECT_EQ(RowsOf(Days()), 366);
}

TEST_F(CalendarsWindowTest, ExplainsTheCurrenciesByTheirNames) {
  OpenCalendars();
  const QAbstractItemModel& nodes = *Tree().model();
  const QModelIndex euro = nodes.match(nodes.index(0, 0), Qt::DisplayRole, "EUR").first();
  EXPECT_EQ(euro.data(Qt::ToolTipRole).toString(), "Euro");
  EXPECT_EQ(euro.data(Qt::AccessibleDescriptionRole).toString(), "Euro");
}

TEST_F(CalendarsWindowTest, OpensAgainAfterItsFrameWasClosed) {
  for (int i = 0; i < 3; ++i) {
    OpenDollar2028();
    CloseByFrame(Window());
    EXPECT_FALSE(IsOpen());
  }
}

TEST_F(CalendarsWindowTest, ClosesWhileItsMenuIsOpen) {
  OpenDollar2028();
  WalkToRow(Days(), 10);
  script_.Expect("ID_StatesMenu", [this](QWidget&) { CloseByFrame(Window()); });
  RightClickRow(Days(), 10);
  EXPECT_FALSE(IsOpen());
  OpenDollar2028();
}

TEST_F(CalendarsWindowTest, IsClosedByTheHostWhileItsMenuIsOpen) {
  OpenDollar2028();
  WalkToRow(Days(), 10);
  script_.Expect("ID_StatesMenu", [this](QWidget&) { EXPECT_TRUE(ForceClosing()); });
  RightClickRow(Days(), 10);
  EXPECT_FALSE(IsOpen());
  OpenDollar2028();
}

}  // namespace
}  // namespace ferrowind::gui
