// What a Calendars window tells of dates, and that it opens as it was left.

#include <gmock/gmock.h>

#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/common/window_placement.h"

#include "tests/unit/views/planning/memory_calendars.h"

namespace ferrowind {
namespace {

using platform::Date;
using testing::MemoryCalendars;
using testing::RunInFreshThread;

TEST(DayDates, TellTheWeekdayAndAllOfTheYear) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    EXPECT_EQ(calendars.Grid().CellText(105, "FullDate"), "2028-04-14 Fri");
    EXPECT_EQ(calendars.Grid().CellText(105, "Weekday"), "Friday");
    EXPECT_EQ(calendars.Grid().ColumnOf("Weekday").Caption(), "Weekday");
  });
}

TEST(DayDates, MarkToday) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.world.clock.SetToday(Date(2028, 4, 14));
    calendars.OpenAt(2028);
    EXPECT_EQ(calendars.Grid().CellText(105, "FullDate"), "2028-04-14 Fri - today");
    EXPECT_EQ(calendars.Grid().CellText(106, "FullDate"), "2028-04-15 Sat");
  });
}

TEST(DayDates, GroupTheWeekdaysInTheOrderOfTheWeek) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    if (!calendars.Grid().GroupByBoxVisible()) calendars.Grid().ToggleGroupByBox();
    calendars.Grid().DragHeaderToGroups("Weekday");
    calendars.Tools().ClickTool("ID_CollapseGrid");
    ASSERT_EQ(calendars.Grid().RowCount(), 7);
    EXPECT_EQ(calendars.Grid().CellText(1, "Weekday"), "Sunday");
    EXPECT_EQ(calendars.Grid().CellText(2, "Weekday"), "Monday");
    EXPECT_EQ(calendars.Grid().CellText(7, "Weekday"), "Saturday");
  });
}

TEST(StoredView, OpensOnTheCalendarThatWasLeftAndWhereItWasScrolledTo) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    calendars.Grid().SetFirstVisibleRow(100);
    calendars.Close();
    calendars.Open();
    EXPECT_EQ(calendars.Tree().Selected(), "K978_2028");
    EXPECT_EQ(calendars.Grid().RowCount(), 366);
    EXPECT_EQ(calendars.Grid().FirstVisibleRow(), 100);
  });
}

TEST(StoredView, KnowsTheCalendarOnShowWhenTheSessionEndsWithoutClosingTheWindow) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    calendars.Close();
    calendars.OpenAt(2027);
    const auto stored = [&](const char* name) {
      return platform::ToInt32(SharedServicesObject().ReadSetting(SettingsSectionOf("Window Calendars"), name,
                                                                  {}, std::int32_t{0}));
    };
    EXPECT_EQ(stored("LastCurrency"), 978);
    EXPECT_EQ(stored("LastYear"), 2027);
    EXPECT_EQ(stored("FirstVisibleRow"), 0);
  });
}

TEST(StoredView, OpensWithTheBoxToGroupByAsItWasLeft) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    calendars.Grid().ToggleGroupByBox();
    const bool was_visible = calendars.Grid().GroupByBoxVisible();
    calendars.Close();
    calendars.Open();
    EXPECT_EQ(calendars.Grid().GroupByBoxVisible(), was_visible);
    EXPECT_EQ(calendars.Tools().ToolPressed("ID_ShowHide"), was_visible);
  });
}

TEST(StoredView, OpensWithoutDaysWhenTheCalendarIsGone) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2029}});
    const auto created = static_cast<std::int32_t>(calendars.world.database->History().size());
    calendars.OpenAt(2029);
    calendars.Close();
    calendars.Call("CldUndo", {{"EntryID", created}});
    calendars.Open();
    EXPECT_EQ(calendars.Grid().RowCount(), 0);
    EXPECT_FALSE(calendars.Grid().Enabled());
  });
}

TEST(StoredView, IgnoresSettingsThatAreNone) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    calendars.Close();
    for (const char* const name : {"LastCurrency", "LastYear", "FirstVisibleRow", "GroupByBox"}) {
      calendars.world.services->PutSetting(
          "\\Tessaro\\Calendar\\7E34C663-43BF-11d6-8AE5-0050228F1EE8\\Window Calendars", name, "nonsense");
    }
    calendars.Open();
    EXPECT_EQ(calendars.Grid().RowCount(), 0);
  });
}

}  // namespace
}  // namespace ferrowind
