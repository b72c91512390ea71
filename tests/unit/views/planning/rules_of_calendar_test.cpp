// The Holidays window with the rules of its calendar's currency, and where the calendar has them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/fault_scenario.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/planning/planned_holidays.h"

namespace ferrowind {
namespace {

using platform::Date;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using testing::PlannedHolidays;
using testing::RunInFreshThread;

TEST(RulesOfCalendar, ListOnlyThoseOfTheCurrencyUntilAllAreAskedFor) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    EXPECT_TRUE(holidays.Tools().ToolPressed("ID_OwnRules"));
    EXPECT_EQ(holidays.Names().size(), 5u);
    EXPECT_THAT(holidays.Names(), Not(Contains("Independence Day")));
    holidays.Show([&] {
      holidays.Tools().ClickTool("ID_OwnRules");
      EXPECT_THAT(holidays.Names(), Contains("Independence Day"));
      EXPECT_EQ(holidays.Names().size(), 6u);
      holidays.Tools().ClickTool("ID_OwnRules");
      EXPECT_EQ(holidays.Names().size(), 5u);
    });
  });
}

TEST(RulesOfCalendar, TellOnWhichDaysTheCalendarHasThem) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    holidays.Give(Date(2028, 4, 14), 5);
    holidays.Give(Date(2028, 7, 3), 6);
    holidays.Give(Date(2028, 7, 4), 6);
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    EXPECT_EQ(holidays.Grid().ColumnByKey("CalendarDays").Caption(), "In EUR 2028");
    const auto days_of = [&](const char* rule) {
      return holidays.Grid().CellText(holidays.RowOf(rule), "CalendarDays");
    };
    EXPECT_EQ(days_of("Good Friday"), "Friday 14 April 2028");
    EXPECT_EQ(days_of("Street fair"), "Monday 3 July 2028, Tuesday 4 July 2028");
    EXPECT_EQ(days_of("Saturday"), "53 days");
    EXPECT_EQ(days_of("New Year's Day"), "");
  });
}

TEST(RulesOfCalendar, HaveTheirDaysBesideTheirNamesAndTheGivenColumnsAsTheyWere) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    EXPECT_THAT(holidays.Grid().ColumnOrder(),
                ElementsAre("Name", "CalendarDays", "FullDate", "HolidayType", "Comment", "DayOfMonth",
                            "MonthOfYear", "ID_Holiday", "DayOfWeek", "Del"));
    EXPECT_EQ(holidays.Grid().ColumnByKey("CalendarDays").Index(), 10);
  });
}

TEST(RulesOfCalendar, SortByTheirFirstDayInTheCalendar) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    holidays.Give(Date(2028, 4, 14), 5);
    holidays.Give(Date(2028, 2, 3), 6);
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    auto& grid = holidays.Grid();
    grid.SortKeys().Clear();
    grid.SortKeys().Add(grid.ColumnByKey("CalendarDays").Index(), platform::kSortDescending, 0);
    grid.Refresh(false);
    EXPECT_EQ(holidays.Names()[0], "Good Friday");
    EXPECT_EQ(holidays.Names()[1], "Street fair");
  });
}

TEST(RulesOfCalendar, AreAssignedFromTheRowsOnShow) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    holidays.world.toolkit.ScriptModal("fmAssignPreview", [](headless::HeadlessForm& form) {
      form.Part<headless::HeadlessButton>("cmdAssign").Click();
    });
    holidays.Show([&] { holidays.Assign("Street fair"); });
    EXPECT_EQ(holidays.RuleOn(Date(2028, 7, 1)), 6);
  });
}

TEST(RulesOfCalendar, AreListedAsBeforeAtAnyFailingCall) {
  int opened = 0;
  bool has_fired = true;
  for (int call = 1; has_fired && call < 1000; ++call) {
    RunInFreshThread([&] {
      PlannedHolidays holidays;
      holidays.MakeWindow();
      holidays.world.faults.FailAtCall(call);
      bool is_ready = false;
      EXPECT_NO_THROW(is_ready = holidays.Init(kWholeCalendarMode));
      has_fired = holidays.world.faults.HasFired();
      holidays.world.faults.Disarm();
      if (!is_ready) return;
      ++opened;
      const bool is_choosing = holidays.Tools().ToolPressed("ID_OwnRules");
      EXPECT_EQ(holidays.Names().size(), is_choosing ? 5u : 6u) << holidays.world.faults.FailedCall();
      EXPECT_EQ(holidays.Tools().ToolEnabled("ID_OwnRules"), is_choosing);
      if (!is_choosing) {
        // It says why.
        EXPECT_NE(holidays.Tools().ToolDescription("ID_OwnRules"),
                  "List only the rules of the calendar's currency");
      }
    });
  }
  EXPECT_GT(opened, 20);
}

class ListedRules : public PlannedHolidays {
 public:
  ListedRules() {
    EXPECT_TRUE(Init(kWholeCalendarMode));
    Form().Show();
  }
};

TEST(RulesOfCalendar, AreListedOnceTheListCanBeReadAgainWhicheverCallHasFailed) {
  testing::FailEachCall<ListedRules>(
      {.act = [](ListedRules& rules) { rules.Tools().ClickTool("ID_OwnRules"); },
       .look =
           [](ListedRules& rules) {
             EXPECT_TRUE(rules.Form().IsShown());
             if (rules.Tools().ToolPressed("ID_OwnRules")) rules.Tools().ClickTool("ID_OwnRules");
             rules.Tools().ClickTool("ID_OwnRules");
             EXPECT_TRUE(rules.Tools().ToolPressed("ID_OwnRules"));
             EXPECT_EQ(rules.Names().size(), 5u);
             rules.Tools().ClickTool("ID_OwnRules");
             EXPECT_EQ(rules.Names().size(), 6u);
             rules.Tools().ClickTool("ID_OwnRules");
           },
       // The window itself says nothing of its list, and of its weekdays twice.
       .is_silent = [](const std::string&) { return true; },
       .most_told = 2},
      10);
}

}  // namespace
}  // namespace ferrowind
