#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_widget.h"
#include "ferrowind/adapters/qt/grid/group_by_box.h"

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using platform::Date;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// The day grid of USD 2028 with a weekend, a celebration, a holiday point and an exception.
class DayGridTest : public WindowsTest {
 protected:
  DayGridTest() {
    constexpr std::int32_t kSaturday = 2;
    constexpr std::int32_t kNewYear = 4;
    constexpr std::int32_t kGoodFriday = 5;
    desk_.Call("CldIUMain", {kDollar, 2028, 2, kSaturday, {}, {}, {}});
    desk_.Call("CldIUMain", {kDollar, 2028, 3, kNewYear, 1, Date(2028, 1, 1), {}});
    desk_.Call("CldIUMain", {kDollar, 2028, 4, kGoodFriday, 105, Date(2028, 4, 14), {}});
    desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 8, {}, "inventory"});
    OpenDollar2028();
    // Wide enough for all columns.
    Window().resize(1600, 900);
    QCoreApplication::processEvents();
  }

  static std::string Shown(const Date& date) {
    return QLocale()
        .toString(QDate(date.Year(), date.Month(), date.Day()), QLocale::ShortFormat)
        .toStdString();
  }
  [[nodiscard]] qt::GroupByBox& Box() const { return Find<qt::GridWidget>(Window(), "gexCalendar").Box(); }
  void GroupBy(const std::string& caption) {
    if (!Box().isVisible()) ClickTool(Window(), "ID_ShowHide");
    QCoreApplication::processEvents();
    ASSERT_TRUE(Box().isVisible());
    DragHeader(Days(), caption, Box().mapToGlobal(Box().rect().center()));
  }
  [[nodiscard]] bool IsGroupRow(int row) const {
    return !Days().Model()->Content().RecordInRow(static_cast<std::uint32_t>(row)).has_value();
  }
  [[nodiscard]] std::string GroupText(int row) const {
    return Days().Model()->index(row, 0).data(Qt::DisplayRole).toString().toStdString();
  }
};

TEST_F(DayGridTest, ShowsTheTextsOfEveryDay) {
  EXPECT_EQ(CellText(Days(), 0, "Date"), Shown(Date(2028, 1, 1)));
  EXPECT_EQ(CellText(Days(), 0, "Day type"), "Celebration");
  EXPECT_EQ(CellText(Days(), 0, "Holiday name"), "New Year's Day");
  EXPECT_EQ(CellText(Days(), 0, "Description"), "1 January");
  EXPECT_EQ(CellText(Days(), 0, "Comment"), "");
  EXPECT_EQ(CellText(Days(), 1, "Day type"), "Working day");
  EXPECT_EQ(CellText(Days(), 1, "Holiday name"), "");
  EXPECT_EQ(CellText(Days(), 7, "Holiday name"), "Working day by exception");
  EXPECT_EQ(CellText(Days(), 7, "Comment"), "inventory");
  EXPECT_EQ(CellText(Days(), 14, "Holiday name"), "Saturday");
}

TEST_F(DayGridTest, ComputesDayMonthAndMonthNameOfEveryDay) {
  const auto computed = [this](int row) {
    std::string texts;
    for (const char* caption : {"Day of year", "Day of month", "Month", "Month name"}) {
      texts += CellText(Days(), row, caption) + " ";
    }
    return texts;
  };
  EXPECT_EQ(computed(0), "1 1 1 January ");
  EXPECT_EQ(computed(59), "60 29 2 February ");
  EXPECT_EQ(computed(60), "61 1 3 March ");
  EXPECT_EQ(computed(365), "366 31 12 December ");
}

TEST_F(DayGridTest, ColoursTheDaysByTheirType) {
  const grid_content::RowLook holiday = LookOfRow(Days(), 14);
  ASSERT_TRUE(holiday.fore_color);
  EXPECT_EQ(*holiday.fore_color, (platform::Color{255, 0, 0}));
  EXPECT_TRUE(holiday.is_bold);
  const grid_content::RowLook celebration = LookOfRow(Days(), 0);
  ASSERT_TRUE(celebration.fore_color);
  EXPECT_EQ(*celebration.fore_color, (platform::Color{255, 0, 255}));
  EXPECT_TRUE(celebration.is_bold);
  const grid_content::RowLook point = LookOfRow(Days(), 104);
  ASSERT_TRUE(point.fore_color);
  EXPECT_EQ(*point.fore_color, (platform::Color{255, 0, 255}));
  EXPECT_FALSE(point.is_bold);
  EXPECT_EQ(LookOfRow(Days(), 1), grid_content::RowLook{});
  EXPECT_EQ(LookOfRow(Days(), 7), grid_content::RowLook{});
}

TEST_F(DayGridTest, PaintsAHolidayInRed) {
  WalkToRow(Days(), 16);
  const auto red_in_row = [this](int row) {
    const QModelIndex first = Days().Model()->index(row, ColumnOf(Days(), "Day type"));
    const QImage picture = Days().viewport()->grab(Days().visualRect(first)).toImage();
    int red = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QColor color = picture.pixelColor(x, y);
        if (color.red() > 200 && color.green() < 100 && color.blue() < 100) ++red;
      }
    }
    return red;
  };
  EXPECT_GT(red_in_row(14), 10);
  EXPECT_EQ(red_in_row(15), 0);
}

TEST_F(DayGridTest, SortsByItsHeaderDescendingThenAscendingThenNot) {
  ClickHeader(Days(), "Day of year");
  EXPECT_EQ(CellText(Days(), 0, "Day of year"), "366");
  ClickHeader(Days(), "Day of year");
  EXPECT_EQ(CellText(Days(), 0, "Day of year"), "1");
  ClickHeader(Days(), "Day of year");
  EXPECT_EQ(Days().Model()->Content().SortKeys().Count(), 0);
  ClickHeader(Days(), "Month name");
  EXPECT_EQ(CellText(Days(), 0, "Month name"), "December");
}

TEST_F(DayGridTest, AddsASortKeyWithTheShiftKey) {
  ClickHeader(Days(), "Month");
  ClickHeader(Days(), "Day of month", Qt::ShiftModifier);
  EXPECT_EQ(Days().Model()->Content().SortKeys().Count(), 2);
  EXPECT_EQ(CellText(Days(), 0, "Month"), "12");
  EXPECT_EQ(CellText(Days(), 0, "Day of month"), "1");
}

TEST_F(DayGridTest, KeepsSortingRowAndScrollingWhenItIsRefilled) {
  ClickHeader(Days(), "Day of year");
  WalkToRow(Days(), 100);
  const int first = Days().FirstVisibleRow();
  const int column = Days().CurrentColumn();
  ClickTool(Window(), "ID_Refresh");
  EXPECT_EQ(CellText(Days(), 0, "Day of year"), "366");
  EXPECT_EQ(Days().currentIndex().row(), 100);
  EXPECT_EQ(Days().FirstVisibleRow(), first);
  EXPECT_EQ(Days().CurrentColumn(), column);
}

TEST_F(DayGridTest, LeavesARowBehindThatTheOtherCalendarDoesNotHave) {
  WalkToRow(Days(), 365);
  ClickNode(Tree(), {"USD", "2027"});
  EXPECT_EQ(RowsOf(Days()), 365);
  EXPECT_EQ(Days().currentIndex().row(), -1);
}

TEST_F(DayGridTest, ShowsAndHidesTheBoxToGroupBy) {
  EXPECT_FALSE(Box().isVisible());
  ClickTool(Window(), "ID_ShowHide");
  EXPECT_TRUE(Box().isVisible());
  EXPECT_FALSE(desk_.Toolkit().UpdatesAreLocked());
  ClickTool(Window(), "ID_ShowHide");
  EXPECT_FALSE(Box().isVisible());
}

TEST_F(DayGridTest, GroupsByAHeaderThatIsDraggedIntoTheBox) {
  GroupBy("Month");
  ASSERT_TRUE(IsGroupRow(0));
  EXPECT_EQ(GroupText(0), "Month: 1 (31)");
  EXPECT_EQ(RowsOf(Days()), 366 + 12);
  EXPECT_EQ(GroupText(32), "Month: 2 (29)");
  EXPECT_FALSE(desk_.Toolkit().UpdatesAreLocked());
}

TEST_F(DayGridTest, CollapsesAndExpandsItsGroupsByTheTools) {
  GroupBy("Month");
  ClickTool(Window(), "ID_CollapseGrid");
  EXPECT_EQ(RowsOf(Days()), 12);
  WalkToRow(Days(), 1);
  ClickTool(Window(), "ID_ExpSel");
  EXPECT_EQ(RowsOf(Days()), 12 + 29);
  ClickTool(Window(), "ID_ExpandGrid");
  EXPECT_EQ(RowsOf(Days()), 12 + 366);
}

TEST_F(DayGridTest, KeepsItsGroupsWhenItIsRefilledAndWhenAnotherCalendarIsShown) {
  GroupBy("Month");
  ClickTool(Window(), "ID_Refresh");
  EXPECT_EQ(RowsOf(Days()), 12 + 366);
  ClickNode(Tree(), {"USD"});
  ClickNode(Tree(), {"USD", "2027"});
  EXPECT_EQ(RowsOf(Days()), 12 + 365);
  EXPECT_EQ(GroupText(32), "Month: 2 (28)");
}

TEST_F(DayGridTest, HasNoMenuWithoutACurrentRow) {
  ClickNode(Tree(), {"USD"});
  ClickNode(Tree(), {"USD", "2027"});
  ASSERT_EQ(Days().currentIndex().row(), -1);
  QTest::mouseRelease(Days().viewport(), Qt::RightButton, {}, QPoint(5, 5));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(DayGridTest, OpensItsMenuAtARightClick) {
  std::vector<std::string> texts;
  WalkToRow(Days(), 3);
  script_.Expect("ID_StatesMenu", [&](QWidget& menu) {
    for (const QAction* action : menu.actions())
      texts.push_back(action->isSeparator() ? "-" : action->iconText().toStdString());
    Press(menu, Qt::Key_Escape);
  });
  RightClickRow(Days(), 3);
  EXPECT_THAT(texts,
              ElementsAre("Assign holiday for single day ...", "Assign group holidays for calendar ...", "-",
                          "Except day from holidays list", "Except day from holiday list with message ..."));
}

TEST_F(DayGridTest, OpensItsMenuAtTheMenuKeyBesideTheCurrentRow) {
  WalkToRow(Days(), 10);
  QPoint place;
  script_.Expect("ID_StatesMenu", [&](QWidget& menu) {
    place = menu.pos();
    Press(menu, Qt::Key_Escape);
  });
  Press(Days(), Qt::Key_Menu);
  QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            Days().viewport()->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&Days(), &request);
  const QRect row = Days().visualRect(Days().currentIndex());
  EXPECT_NEAR(place.y(), Days().viewport()->mapToGlobal(row.bottomLeft()).y(), row.height());
}

TEST_F(DayGridTest, ExceptsADayFromItsMenu) {
  PickForDay(14, "ID_Except");
  EXPECT_EQ(CellText(Days(), 14, "Holiday name"), "Working day by exception");
  EXPECT_EQ(Days().currentIndex().row(), 14);
  EXPECT_EQ(desk_.ReadOne("SELECT TID1, ID2, Comment FROM CldDay WHERE Year1 = 2028 AND Day1 = 15"), "1|1|-");
  PickForDay(14, "ID_Except");
  EXPECT_EQ(desk_.ReadOne("SELECT TID1, ID2, Comment FROM CldDay WHERE Year1 = 2028 AND Day1 = 15"), "1|1|-");
}

TEST_F(DayGridTest, ExceptsADayWithTheMessageOfTheDialog) {
  script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_Except2"); });
  script_.Expect("fmExceptMess", [](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Except with message");
    QTest::keyClicks(QApplication::focusWidget(), "  two  words ");
    Press(*QApplication::focusWidget(), Qt::Key_Return);
  });
  WalkToRow(Days(), 21);
  RightClickRow(Days(), 21);
  EXPECT_EQ(CellText(Days(), 21, "Comment"), "two  words");
  EXPECT_EQ(desk_.ReadOne("SELECT TID1, ID2, Comment FROM CldDay WHERE Year1 = 2028 AND Day1 = 22"),
            "1|1|two  words");
}

TEST_F(DayGridTest, ChangesNothingWhenTheDialogOfTheMessageIsLeftByEsc) {
  script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_Except2"); });
  script_.Expect("fmExceptMess", [](QWidget& dialog) {
    TypeInto(dialog, "txtMessage", "never mind");
    Press(*QApplication::focusWidget(), Qt::Key_Escape);
  });
  WalkToRow(Days(), 21);
  RightClickRow(Days(), 21);
  EXPECT_EQ(CellText(Days(), 21, "Holiday name"), "Saturday");
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE Comment = 'never mind'"), "0");
}

TEST_F(DayGridTest, CopiesTheCurrentRowWithTheHeaders) {
  WalkToRow(Days(), 0);
  ClickTool(Window(), "ID_Copy");
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  const QStringList lines = copied->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 2);
  EXPECT_EQ(
      lines[0].toStdString(),
      "Date\tDay type\tHoliday name\tDescription\tComment\tDay of year\tDay of month\tMonth\tMonth name");
  EXPECT_EQ(lines[1].toStdString(),
            Shown(Date(2028, 1, 1)) + "\tCelebration\tNew Year's Day\t1 January\t\t1\t1\t1\tJanuary");
  EXPECT_THAT(copied->html().toStdString(), HasSubstr("Celebration"));
  WalkToRow(Days(), 1);
  QTest::keySequence(&Days(), QKeySequence::Copy);
  EXPECT_THAT(QApplication::clipboard()->text().split(QLatin1Char('\n'))[1].toStdString(),
              StartsWith(Shown(Date(2028, 1, 2)) + "\tWorking day"));
}

TEST_F(DayGridTest, CopiesTheDaysMarkedWithTheShiftKey) {
  WalkToRow(Days(), 13);
  Press(Days(), Qt::Key_Down, Qt::ShiftModifier, 2);
  ClickTool(Window(), "ID_Copy");
  const auto first_cells = [] {
    std::vector<std::string> cells;
    for (const QString& line : QApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts))
      cells.push_back(line.section(QLatin1Char('\t'), 0, 0).toStdString());
    return cells;
  };
  const auto three_days =
      ElementsAre("Date", Shown(Date(2028, 1, 14)), Shown(Date(2028, 1, 15)), Shown(Date(2028, 1, 16)));
  EXPECT_THAT(first_cells(), three_days);
  QApplication::clipboard()->clear();
  QTest::keySequence(&Days(), QKeySequence::Copy);
  EXPECT_THAT(first_cells(), three_days);
}

TEST_F(DayGridTest, ExceptsTheCurrentDayAloneOfTheMarkedOnes) {
  WalkToRow(Days(), 13);
  Press(Days(), Qt::Key_Down, Qt::ShiftModifier, 8);
  PickForDay(14, "ID_Except");
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE ID1 = 840 AND Year1 = 2028 AND ID2 = 1"), "2");
  EXPECT_EQ(CellText(Days(), 14, "Holiday name"), "Working day by exception");
  EXPECT_EQ(Days().selectionModel()->selectedRows().size(), 1) << "the refill leaves the current day chosen";
}

TEST_F(DayGridTest, GroupsByTheNamesOfTheMonthsInTheirOrder) {
  GroupBy("Month name");
  ClickTool(Window(), "ID_CollapseGrid");
  ASSERT_EQ(RowsOf(Days()), 12);
  EXPECT_EQ(GroupText(0), "Month name: January (31)");
  EXPECT_EQ(GroupText(1), "Month name: February (29)");
  EXPECT_EQ(GroupText(11), "Month name: December (31)");
}

/// The columns of a host over the same days.
class HostColumnsTest : public WindowsTest {
 protected:
  HostColumnsTest() {
    desk_.Call("CldIUMain", {kDollar, 2028, 3, 4, 1, Date(2028, 1, 1), {}});
    headers_->Add("Rule", "ID2", "Rule number");
    headers_->Add("Weekday", "Weekday", "Weekday");
    headers_->LocalNames("Weekday")->SetFunction([](const platform::RecordSet& day) {
      return platform::Value(platform::ToDate(day["ODate"]).Weekday());
    });
    OpenDollar2028();
    Window().resize(1800, 900);
    QCoreApplication::processEvents();
  }
  std::shared_ptr<GridFields> headers_ = Control().Headers();
};

TEST_F(HostColumnsTest, ShowAFieldThatTheDatabaseGivesAndWhatTheHostComputes) {
  EXPECT_EQ(CellText(Days(), 0, "Rule number"), "4");
  EXPECT_EQ(CellText(Days(), 1, "Rule number"), "");
  EXPECT_EQ(CellText(Days(), 0, "Weekday"), "7");
  EXPECT_EQ(CellText(Days(), 1, "Weekday"), "1");
}

TEST_F(HostColumnsTest, AreSortedByWhatTheHostComputes) {
  ClickHeader(Days(), "Weekday");
  EXPECT_EQ(CellText(Days(), 0, "Weekday"), "7");
  EXPECT_EQ(CellText(Days(), 52, "Weekday"), "7");
  EXPECT_EQ(CellText(Days(), 53, "Weekday"), "6");
}

TEST_F(HostColumnsTest, TakeCaptionsAndVisibilityWhileTheWindowIsOpen) {
  headers_->LocalNames("Month")->SetCaption("Number of the month");
  EXPECT_EQ(CellText(Days(), 0, "Number of the month"), "1");
  const int comment = ColumnOf(Days(), "Comment");
  headers_->LocalNames("Comment")->SetVisible(false);
  EXPECT_TRUE(Days().Header().isSectionHidden(comment));
  headers_->LocalNames("Comment")->SetVisible(true);
  EXPECT_FALSE(Days().Header().isSectionHidden(comment));
}

}  // namespace
}  // namespace ferrowind::gui
