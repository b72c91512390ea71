// Computed cells, formats, header clicks, regrouping and the context menu of the day grid.
#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using headless::GridRowStyle;
using platform::Color;
using platform::kSortAscending;
using platform::kSortDescending;
using platform::kSortNone;
using testing::CalendarsWorld;
using testing::Date;
using ::testing::ElementsAre;
using testing::Rows;
using testing::RunInFreshThread;
using testing::Value;
using Texts = std::vector<std::string>;

void ExpectComputed(const CalendarsWorld& calendars, std::int32_t row, std::int32_t day_of_year,
                    std::int32_t day_of_month, std::int32_t month, const std::string& month_name) {
  EXPECT_EQ(calendars.Grid().CellValue(row, "DayOfYear"), Value(day_of_year));
  EXPECT_EQ(calendars.Grid().CellValue(row, "DayOfMonth"), Value(day_of_month));
  EXPECT_EQ(calendars.Grid().CellValue(row, "Month"), Value(month));
  EXPECT_EQ(calendars.Grid().CellValue(row, "MonthName"), Value(month_name));
}

// Computed cells
// ------------------------------------------------------------------------------------------------

TEST(DayGridComputedCells, GiveDayOfTheYearDayMonthAndMonthName) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerDays(
        {CalendarsWorld::Day(Date(2026, 1, 1), 1), CalendarsWorld::Day(Date(2026, 12, 31), 1)});
    calendars.OpenAt("K978_2026");
    ExpectComputed(calendars, 1, 1, 1, 1, "January");
    ExpectComputed(calendars, 2, 365, 31, 12, "December");
  });
}

TEST(DayGridComputedCells, CountALeapYearTo366) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerDays(
        {CalendarsWorld::Day(Date(2028, 2, 29), 1), CalendarsWorld::Day(Date(2028, 12, 31), 1)});
    calendars.OpenAt("K978_2026");
    ExpectComputed(calendars, 1, 60, 29, 2, "February");
    ExpectComputed(calendars, 2, 366, 31, 12, "December");
  });
}

TEST(DayGridComputedCells, SortTheNamesOfTheMonthsAsTheMonthsFollowOneAnother) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    Rows days;
    for (int month = 12; month >= 1; --month) days.push_back(CalendarsWorld::Day(Date(2026, month, 5), 1));
    calendars.AnswerDays(days);
    calendars.OpenAt("K978_2026");
    auto& grid = calendars.Grid();
    grid.GroupKeys().Add(grid.ColumnByKey("MonthName").Index(), kSortAscending, 0);
    grid.Refresh(true);
    Texts groups;
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row) {
      if (grid.IsGroupRow(row)) groups.push_back(grid.CellText(row, ""));
    }
    EXPECT_THAT(groups, ElementsAre("January", "February", "March", "April", "May", "June", "July", "August",
                                    "September", "October", "November", "December"));
    EXPECT_EQ(grid.CellValue(2, "MonthName"), Value("January"));
  });
}

TEST(DayGridComputedCells, FollowTheFieldThatTheMapGivesForTheDate) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.headers->LocalNames("FullDate")->SetFieldName("Settlement");
    calendars.DaysAnswer().Gives({"ODate", "Settlement"}, {{Date(2026, 1, 1), Date(2026, 3, 5)}});
    calendars.OpenAt("K978_2026");
    ExpectComputed(calendars, 1, 64, 5, 3, "March");
  });
}

TEST(DayGridComputedCells, BelongToTheirRowsUnderASort) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerDays({CalendarsWorld::Day(Date(2026, 1, 1), 1), CalendarsWorld::Day(Date(2026, 2, 1), 1),
                          CalendarsWorld::Day(Date(2026, 3, 1), 1)});
    calendars.OpenAt("K978_2026");
    calendars.Grid().SortKeys().Add(calendars.Grid().ColumnByKey("DayOfYear").Index(), kSortDescending, 0);
    calendars.Grid().Refresh(true);
    EXPECT_EQ(calendars.Grid().CellValue(1, "MonthName"), Value("March"));
    EXPECT_EQ(calendars.Grid().CellValue(3, "MonthName"), Value("January"));
  });
}

TEST(DayGridComputedCells, OfADateThatIsNoneStayEmptyWithoutAMessage) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerDays({{Value(), 1, {}, {}, {}, {}, {}}, {Value("no date"), 1, {}, {}, {}, {}, {}}});
    calendars.OpenAt("K978_2026");
    for (const std::int32_t row : {1, 2}) {
      for (const char* column : {"DayOfYear", "DayOfMonth", "Month", "MonthName"}) {
        EXPECT_TRUE(calendars.Grid().CellValue(row, column).IsEmpty());
      }
    }
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(DayGridComputedCells, AreGivenForTheFourComputedColumnsOnly) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().ColumnByKey("Comment").SetUnbound(true);
    EXPECT_TRUE(calendars.Grid().CellValue(1, "Comment").IsEmpty());
    EXPECT_FALSE(calendars.Grid().CellValue(1, "Month").IsEmpty());
  });
}

// Formats
// -------------------------------------------------------------------------------------------------------

TEST(DayGridFormats, ColourTheDaysByTheirTypeWhichIsShownAsText) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    EXPECT_EQ(calendars.Grid().CellText(1, "HolidayType"), "Celebration");
    EXPECT_EQ(calendars.Grid().RowStyle(1), (GridRowStyle{Color{255, 0, 255}, true, false}));
    EXPECT_EQ(calendars.Grid().RowStyle(2), GridRowStyle());
    EXPECT_EQ(calendars.Grid().CellText(3, "HolidayType"), "Holiday");
    EXPECT_EQ(calendars.Grid().RowStyle(3), (GridRowStyle{Color{255, 0, 0}, true, false}));
    EXPECT_EQ(calendars.Grid().RowStyle(5), (GridRowStyle{Color{255, 0, 255}, false, false}));
  });
}

TEST(DayGridFormats, StayInStepWithTheNamesInTheDatabase) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerAllInfo(CalendarsWorld::UsualCalendars(),
                            {{1, "Arbeitstag"}, {2, "Feiertag"}, {3, "Fest"}, {4, "Halt"}});
    calendars.OpenAt("K978_2026");
    EXPECT_EQ(calendars.Grid().CellText(3, "HolidayType"), "Feiertag");
    EXPECT_EQ(calendars.Grid().RowStyle(3), (GridRowStyle{Color{255, 0, 0}, true, false}));
  });
}

// Header clicks
// -------------------------------------------------------------------------------------------------

TEST(DayGridHeaderClick, CyclesFromNoneToDescendingToAscendingToNone) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    auto& column = calendars.Grid().ColumnByKey("FullDate");
    std::vector<std::int32_t> orders;
    for (int click = 0; click < 4; ++click) {
      calendars.Grid().ClickHeader("FullDate");
      orders.push_back(column.SortOrder());
    }
    EXPECT_EQ(orders,
              (std::vector<std::int32_t>{kSortDescending, kSortAscending, kSortNone, kSortDescending}));
    EXPECT_THAT(calendars.world.log.StartingWith("services."),
                ElementsAre("services.SortGridByColumn(-1, gexCalendar, FullDate)",
                            "services.SortGridByColumn(1, gexCalendar, FullDate)",
                            "services.SortGridByColumn(0, gexCalendar, FullDate)",
                            "services.SortGridByColumn(-1, gexCalendar, FullDate)"));
  });
}

TEST(DayGridHeaderClick, CyclesTheColumnThatWasClicked) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().ClickHeader("FullDate");
    calendars.Grid().ClickHeader("HolidayName");
    EXPECT_EQ(calendars.Grid().ColumnByKey("HolidayName").SortOrder(), kSortDescending);
    EXPECT_EQ(calendars.Grid().ColumnByKey("FullDate").SortOrder(), kSortNone);
  });
}

TEST(DayGridHeaderClick, ThatFailsIsReported) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.faults.FailAtCall(1);
    calendars.Grid().ClickHeader("FullDate");
    EXPECT_EQ(calendars.SeenByOperator(),
              Texts{R"(services.ReportError(7777, "Planned fault in services.SortGridByColumn"))"});
  });
}

// Regrouping
// ----------------------------------------------------------------------------------------------------

TEST(DayGridRegrouping, LocksTheWindowBeforeAndRefreshesAndUnlocksAfter) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_ShowHide");
    calendars.world.log.Clear();
    calendars.Grid().DragHeaderToGroups("HolidayType");
    EXPECT_THAT(calendars.world.log.Calls(),
                ElementsAre(R"(operator.gexCalendar.DragHeaderToGroups("HolidayType"))",
                            "toolkit.LockUpdates(fmCalendar)", "gexCalendar.Refresh(True)",
                            "toolkit.UnlockUpdates()"));
    EXPECT_EQ(calendars.Grid().GroupKeys().Count(), 1);
    EXPECT_TRUE(calendars.Grid().IsGroupRow(1));
    calendars.Grid().DragGroupAway(1);
    EXPECT_FALSE(calendars.Grid().IsGroupRow(1));
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  });
}

TEST(DayGridRegrouping, UnlocksTheWindowWhenTheRefreshFails) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_ShowHide");
    const auto failing = calendars.Grid().OnUnboundValue(
        [](auto, auto, auto&) { throw platform::Failure(7777, "cannot compute"); });
    calendars.Grid().DragHeaderToGroups("Month");
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
    EXPECT_EQ(calendars.SeenByOperator(), Texts{R"(services.ReportError(7777, "cannot compute"))"});
  });
}

TEST(DayGridRegrouping, BoxShownFromTheHeadersMovesTheToolWithIt) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().ToggleGroupByBox();
    EXPECT_TRUE(calendars.Tools().ToolPressed("ID_ShowHide"));
    calendars.Click("ID_ShowHide");
    EXPECT_FALSE(calendars.Grid().GroupByBoxVisible());
    EXPECT_FALSE(calendars.Tools().ToolPressed("ID_ShowHide"));
  });
}

// Context menu
// --------------------------------------------------------------------------------------------------

TEST(DayGridMenu, OpensOnTheRightButtonOverACurrentRow) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().RightClickRow(2);
    EXPECT_EQ(calendars.world.log.CountOf(R"(ssatb.ShowPopupMenu("ID_StatesMenu"))"), 1u);
  });
}

TEST(DayGridMenu, OffersNothingForAGroupRowAndEverythingForADayAgain) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_ShowHide");
    calendars.Grid().DragHeaderToGroups("Month");
    const std::vector<std::string> day_tools = calendars.Tools().PopupMenu("ID_StatesMenu").ids;
    const auto enabled = [&] {
      return std::count_if(day_tools.begin(), day_tools.end(), [&](const std::string& id) {
        return id != platform::kToolSeparator && calendars.Tools().ToolEnabled(id);
      });
    };
    ASSERT_TRUE(calendars.Grid().IsGroupRow(1));
    calendars.Grid().RightClickRow(1);
    EXPECT_EQ(enabled(), 0);
    EXPECT_EQ(calendars.world.log.CountOf(R"(ssatb.ShowPopupMenu("ID_StatesMenu"))"), 1u);
    calendars.Grid().RightClickRow(2);
    EXPECT_EQ(enabled(), 4);
  });
}

TEST(DayGridMenu, StaysAwayFromOtherButtons) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().ClickRow(2);
    for (const std::int32_t button : {1, 3, 4}) calendars.Grid().ReleaseMouse(button);
    EXPECT_TRUE(calendars.world.log.StartingWith("ssatb.ShowPopupMenu").empty());
  });
}

TEST(DayGridMenu, StaysAwayWithoutACurrentRow) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    ASSERT_EQ(calendars.Grid().CurrentRow(), 0);
    calendars.Grid().ReleaseMouse(2);
    EXPECT_TRUE(calendars.world.log.StartingWith("ssatb.ShowPopupMenu").empty());
  });
}

}  // namespace
}  // namespace ferrowind
