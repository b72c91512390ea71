// Showing the days of a node in the Calendars window.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using platform::kSortAscending;
using platform::kSortDescending;
using testing::CalendarsWorld;
using testing::Date;
using ::testing::ElementsAre;
using testing::ExpectDaysAsked;
using testing::Rows;
using testing::RunInFreshThread;
using Texts = std::vector<std::string>;

/// What changed the grid, the tools, the locks, and the tree, without the steps of the procedure call.
Texts WindowCalls(const CalendarsWorld& calendars) {
  Texts calls;
  for (const auto& call : calendars.world.log.Calls()) {
    for (const char* object : {"gexCalendar", "ssatb.", "toolkit.", "tvCalendar.", "command.SetText"}) {
      if (call.starts_with(object)) calls.push_back(call);
    }
  }
  return calls;
}

Texts Enabling(bool enabled) {
  Texts calls;
  const std::string value = enabled ? ", True)" : ", False)";
  for (const char* id : {"ID_New", "ID_Expand", "ID_Collapse"}) {
    calls.push_back(std::string("ssatb.SetToolEnabled(\"") + id + "\", True)");
  }
  for (const char* id : {"ID_Copy", "ID_ShowHide", "ID_ExpSel", "ID_ExpandGrid", "ID_CollapseGrid"}) {
    calls.push_back(std::string("ssatb.SetToolEnabled(\"") + id + "\"" + value);
  }
  return calls;
}

const Texts kMarkedUnbound = {
    "gexCalendar.Columns(DayOfYear).SetUnbound(True)", "gexCalendar.Columns(DayOfMonth).SetUnbound(True)",
    "gexCalendar.Columns(Month).SetUnbound(True)", "gexCalendar.Columns(MonthName).SetUnbound(True)"};

Texts Joined(const std::vector<Texts>& parts) {
  Texts all;
  for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

Rows Days(int count) {
  Rows days;
  for (int i = 0; i < count; ++i) days.push_back(CalendarsWorld::Day(Date(2026, 1, 1).AddDays(i), 1));
  return days;
}

TEST(DayGridFill, OfACalendarGoesThroughItsStepsInOrder) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Tree().ToggleNode("K978");
    calendars.world.log.Clear();
    calendars.Tree().ClickNode("K978_2026");
    EXPECT_EQ(WindowCalls(calendars),
              Joined({kMarkedUnbound,
                      {R"(command.SetText("CldGetMain"))", "toolkit.LockUpdates(sssp)",
                       "gexCalendar.SetEnabled(True)"},
                      Enabling(true),
                      {"gexCalendar.HoldColumns()", "gexCalendar.AttachRecords(records 5 rows)",
                       "gexCalendar.Rebind()", "gexCalendar.Refresh(True)", "toolkit.UnlockUpdates()"}}));
    ExpectDaysAsked(calendars.CallsOf("CldGetMain").at(0), 978, 2026);
  });
}

TEST(DayGridFill, PutsBackKeysRowsAndColumnBetweenTheRebindAndTheUnlock) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    auto& grid = calendars.Grid();
    grid.SortKeys().Add(1, kSortDescending, 0);
    grid.SortKeys().Add(3, kSortAscending, 0);
    grid.Refresh(true);
    grid.SetCurrentRow(4);
    grid.SetFirstVisibleRow(2);
    grid.SetCurrentColumn(3);
    calendars.world.log.Clear();
    calendars.Tree().ClickNode("K978_2027");
    EXPECT_THAT(calendars.world.log.Between("gexCalendar.HoldColumns()", "toolkit.UnlockUpdates()"),
                ElementsAre("gexCalendar.HoldColumns()", "gexCalendar.AttachRecords(records 5 rows)",
                            "gexCalendar.Rebind()", "gexCalendar.SortKeys.Add(3, 1, 2)",
                            "gexCalendar.SortKeys.Add(1, -1, 1)", "gexCalendar.Refresh(True)",
                            "gexCalendar.SetCurrentRow(4)", "gexCalendar.SetFirstVisibleRow(2)",
                            "gexCalendar.SetCurrentColumn(3)", "toolkit.UnlockUpdates()"));
  });
}

TEST(DayGridFill, KeepsCurrentRowFirstVisibleRowColumnSortAndGroups) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    auto& grid = calendars.Grid();
    grid.SortKeys().Add(1, kSortDescending, 0);
    grid.GroupKeys().Add(2, kSortAscending, 0);
    grid.Refresh(true);
    grid.SetCurrentRow(3);
    grid.SetFirstVisibleRow(2);
    grid.SetCurrentColumn(4);
    calendars.Tree().ClickNode("K978_2026");
    EXPECT_EQ(grid.CurrentRow(), 3);
    EXPECT_EQ(grid.FirstVisibleRow(), 2);
    EXPECT_EQ(grid.CurrentColumn(), 4);
    ASSERT_EQ(grid.SortKeys().Count(), 1);
    EXPECT_EQ(grid.SortKeys().Item(1)->ColIndex, 1);
    EXPECT_EQ(grid.SortKeys().Item(1)->SortOrder, kSortDescending);
    ASSERT_EQ(grid.GroupKeys().Count(), 1);
    EXPECT_EQ(grid.GroupKeys().Item(1)->ColIndex, 2);
    EXPECT_EQ(grid.ColumnCount(), 9);
  });
}

TEST(DayGridFill, DoesNotPutBackARowBeyondTheNewRows) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().SetCurrentRow(5);
    calendars.Grid().SetFirstVisibleRow(4);
    calendars.AnswerDays(Days(3));
    calendars.world.log.Clear();
    calendars.Tree().ClickNode("K978_2027");
    EXPECT_EQ(calendars.Grid().RowCount(), 3);
    EXPECT_TRUE(calendars.world.log.StartingWith("gexCalendar.SetCurrentRow").empty());
    EXPECT_TRUE(calendars.world.log.StartingWith("gexCalendar.SetFirstVisibleRow").empty());
    EXPECT_EQ(calendars.Grid().CurrentRow(), 0);
  });
}

TEST(DayGridFill, PutsBackTheLastRowOfTheNewRows) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().SetCurrentRow(3);
    calendars.AnswerDays(Days(3));
    calendars.Tree().ClickNode("K978_2027");
    EXPECT_EQ(calendars.Grid().CurrentRow(), 3);
  });
}

TEST(DayGridFill, PutsNothingBackAfterTheGridWasEmpty) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().SetCurrentRow(3);
    calendars.Tree().ClickNode("K840");
    calendars.world.log.Clear();
    calendars.Tree().ClickNode("K978_2026");
    EXPECT_TRUE(calendars.world.log.StartingWith("gexCalendar.SetCurrentRow").empty());
    EXPECT_TRUE(calendars.world.log.StartingWith("gexCalendar.SetFirstVisibleRow").empty());
  });
}

TEST(DayGridFill, OfACurrencyEmptiesAndDisablesTheGridUnderALock) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Tree().ClickNode("K978");
    EXPECT_EQ(WindowCalls(calendars), Joined({kMarkedUnbound,
                                              {"gexCalendar.SetEnabled(False)"},
                                              Enabling(false),
                                              {"toolkit.LockUpdates(sssp)", "gexCalendar.HoldColumns()",
                                               "gexCalendar.AttachRecords(none)", "gexCalendar.Refresh(True)",
                                               "toolkit.UnlockUpdates()"}}));
    EXPECT_EQ(calendars.Grid().RowCount(), 0);
    EXPECT_EQ(calendars.Grid().ColumnCount(), 9);
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 1u);
  });
}

TEST(DayGridFill, OfACurrencyWithAnEmptyGridLocksNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Tree().ClickNode("K978");
    EXPECT_EQ(WindowCalls(calendars),
              Joined({kMarkedUnbound, {"gexCalendar.SetEnabled(False)"}, Enabling(false)}));
  });
}

TEST(DayGridFill, TheSortSurvivesAVisitToACurrency) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().SortKeys().Add(1, kSortDescending, 0);
    calendars.Tree().ClickNode("K978");
    calendars.Tree().ClickNode("K978_2026");
    ASSERT_EQ(calendars.Grid().SortKeys().Count(), 1);
    EXPECT_EQ(calendars.Grid().SortKeys().Item(1)->SortOrder, kSortDescending);
    EXPECT_EQ(calendars.Grid().CellText(1, "FullDate"), "2026-04-03");
  });
}

TEST(DayGridFill, ThatFailsLeavesTheGridAsItWasAndTheFailurePending) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    const auto records = calendars.Grid().Records();
    calendars.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(5, "locked"));
    calendars.Tree().ClickNode("K978_2027");
    EXPECT_EQ(calendars.Grid().Records(), records);
    EXPECT_TRUE(calendars.Grid().Enabled());
    EXPECT_TRUE(calendars.SeenByOperator().empty());
    EXPECT_EQ(Module().pending_failures[0].description, "locked");
    EXPECT_TRUE(calendars.world.log.StartingWith("toolkit.").empty());
  });
}

TEST(DayGridFill, ThatReturnsNonZeroLeavesTheGridAsItWas) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.DaysAnswer().Returns(5).Gives({"ODate"}, {});
    calendars.Tree().ClickNode("K978_2027");
    EXPECT_EQ(calendars.Grid().RowCount(), 5);
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(DayGridFill, WithoutARecordSetLeavesTheGridAsItWas) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.DaysAnswer();
    calendars.Tree().ClickNode("K978_2027");
    EXPECT_EQ(calendars.Grid().RowCount(), 5);
    EXPECT_TRUE(calendars.world.log.StartingWith("toolkit.").empty());
  });
}

TEST(DayGridFill, MakesTheSelectedNodeTheCurrentOne) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    // Selects without a click; expanding the currency then shows the selected node, which becomes the current
    // one.
    calendars.Tree().Select("K840_2026");
    calendars.world.log.Clear();
    calendars.Tree().ToggleNode("K978");
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
  });
}

}  // namespace
}  // namespace ferrowind
