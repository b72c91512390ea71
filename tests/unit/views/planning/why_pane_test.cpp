// The pane that tells why the current day is what it is.
#include "ferrowind/views/planning/why_pane.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_control.h"

#include "tests/support/fault_scenario.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/planning/planned_window.h"

namespace ferrowind {
namespace {

using platform::CellMark;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::PlannedWindow;
using testing::RunInFreshThread;
using ::testing::StartsWith;

constexpr std::int32_t kGoodFriday = 5;

class WhyWindow : public PlannedWindow {
 public:
  void Rest() { world.toolkit.Advance(WhyPane::kRestMilliseconds); }
  void ClickTool() { Tools().ClickTool("ID_Why"); }
  [[nodiscard]] std::string Text() { return Part<headless::HeadlessTextView>("txtWhy").Text(); }
  [[nodiscard]] headless::HeadlessTable& Years() { return Part<headless::HeadlessTable>("tblYears"); }
  [[nodiscard]] bool IsOnShow() { return Form().ControlNamed("pnWhy").Visible(); }
  [[nodiscard]] std::size_t Messages() {
    return world.log.StartingWith("services.ShowMessage(").size() +
           world.log.StartingWith("services.ReportError(").size();
  }
};

TEST(WhyPane, TellsOfTheCurrentDayOnceTheOperatorRestsOnIt) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.Give(Date(2028, 4, 14), kGoodFriday);
    calendars.OpenAt(Date(2028, 4, 14));
    EXPECT_EQ(calendars.Text(), "");
    calendars.Rest();
    EXPECT_EQ(calendars.Text(),
              "EUR, Friday 14 April 2028: Good Friday\n"
              "Rule: easter-2\n"
              "Plan: as planned: Easter Sunday 16 April 2028, two days before\n"
              "Book: ECB: Closing days");
  });
}

TEST(WhyPane, TellsInItsPlaceWhyTheDayCannotBeToldWhicheverCallFails) {
  testing::FailEachCall<WhyWindow>(
      {.arrange =
           [](WhyWindow& calendars) {
             if (!calendars.window) {
               calendars.Give(Date(2028, 4, 14), kGoodFriday);
               calendars.OpenAt(Date(2028, 4, 14));
             }
             calendars.Tools().ClickTool("ID_Refresh");
           },
       .act = [](WhyWindow& calendars) { calendars.Rest(); },
       .look =
           [](WhyWindow& calendars) {
             EXPECT_THAT(calendars.Text(), StartsWith("EUR, Friday 14 April 2028: "));
             calendars.Tools().ClickTool("ID_Refresh");
             calendars.Rest();
             EXPECT_THAT(calendars.Text(),
                         StartsWith("EUR, Friday 14 April 2028: Good Friday\nRule: easter-2\n"));
           },
       .is_silent = [](const std::string&) { return true; },
       .most_told = 0},
      10);
}

TEST(WhyPane, TellsWhoChangedTheDayLast) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.world.database->SetUser("anna");
    calendars.Call("CldIUMain", {978, 2028, 4, kGoodFriday, 105, Date(2028, 4, 14), {}});
    calendars.OpenAt(Date(2028, 4, 14));
    calendars.Rest();
    EXPECT_THAT(calendars.Text(), HasSubstr("\nChanged: anna, "));
    EXPECT_THAT(calendars.Text(), HasSubstr(": Assigned Good Friday to Friday 14 April 2028"));
  });
}

TEST(WhyPane, ShowsTheSameDateAndTheDaysOfTheRuleInTheYearsAround) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.Give(Date(2028, 4, 14), kGoodFriday);
    calendars.Give(Date(2027, 3, 26), kGoodFriday);
    calendars.OpenAt(Date(2028, 4, 14));
    calendars.Rest();
    ASSERT_EQ(calendars.Years().Columns().size(), 3u);
    EXPECT_EQ(calendars.Years().Columns()[1].caption, "Same day");
    EXPECT_EQ(calendars.Years().Columns()[2].caption, "Good Friday");
    EXPECT_THAT(calendars.Years().RowKeys(), ElementsAre("2026", "2027", "2029", "2030"));
    EXPECT_THAT(calendars.Years().Texts("2027"),
                ElementsAre("2027", "Wednesday, working day", "Friday 26 March 2027"));
    EXPECT_THAT(calendars.Years().Texts("2026"), ElementsAre("2026", "not prepared", ""));
    EXPECT_EQ(calendars.Years().Cell("2026", "Date").mark, CellMark::kMissing);
    calendars.ClickDay(Date(2028, 4, 13));
    calendars.Rest();
    EXPECT_EQ(calendars.Years().Columns().size(), 2u);
  });
}

TEST(WhyPane, ReadsTheDatabaseOnceForAllDaysOnShowButForTheHistoryOfADay) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.OpenAt(Date(2028, 4, 14));
    const auto reads = [&] { return calendars.world.log.StartingWith("services.TraceMessage").size(); };
    calendars.Rest();
    const auto before = reads();
    calendars.ClickDay(Date(2028, 4, 13));
    calendars.ClickDay(Date(2028, 4, 12));
    calendars.Rest();
    EXPECT_THAT(calendars.Text(), StartsWith("EUR, Wednesday 12 April 2028: Working day"));
    // The traces of one call.
    EXPECT_EQ(reads() - before, 6u);
    EXPECT_GT(before, 30u);
  });
}

TEST(WhyPane, ReadsAnewWhatWasReadAnewInTheGrid) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.OpenAt(Date(2028, 4, 14));
    calendars.Rest();
    EXPECT_THAT(calendars.Text(), HasSubstr("should be Good Friday"));
    calendars.Give(Date(2028, 4, 14), kGoodFriday);
    calendars.Tools().ClickTool("ID_Refresh");
    calendars.Rest();
    EXPECT_THAT(calendars.Text(), HasSubstr("as planned"));
  });
}

TEST(WhyPane, AsksForADayWhereNoneIsCurrent) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.OpenAt(Date(2028, 4, 14));
    calendars.Rest();
    calendars.Tree().ClickNode("K978");
    calendars.Rest();
    EXPECT_EQ(calendars.Text(), "Choose a day: here stands why it is open or closed.");
    EXPECT_TRUE(calendars.Years().Columns().empty());
  });
}

TEST(WhyPane, IsShownAndHiddenByItsToolAndComesBackAsItWasLeft) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.OpenAt(Date(2028, 4, 14));
    EXPECT_TRUE(calendars.IsOnShow());
    EXPECT_TRUE(calendars.Tools().ToolPressed("ID_Why"));
    calendars.ClickTool();
    EXPECT_FALSE(calendars.IsOnShow());
    calendars.Close();
    calendars.Open();
    EXPECT_FALSE(calendars.IsOnShow());
    EXPECT_FALSE(calendars.Tools().ToolPressed("ID_Why"));
    calendars.ClickTool();
    EXPECT_TRUE(calendars.IsOnShow());
    calendars.Close();
    calendars.Open();
    EXPECT_TRUE(calendars.IsOnShow());
  });
}

TEST(WhyPane, ReadsNothingWhileItIsHiddenAndTellsOfTheDayWhenItIsShown) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.Open();
    calendars.ClickTool();
    calendars.OpenAt(Date(2028, 4, 14));
    calendars.Rest();
    EXPECT_EQ(calendars.Text(), "");
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0u);
    calendars.ClickTool();
    calendars.Rest();
    EXPECT_THAT(calendars.Text(), StartsWith("EUR, Friday 14 April 2028"));
  });
}

TEST(WhyPane, SaysItselfWhatCannotBeReadAndReadsItTheNextTime) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.OpenAt(Date(2028, 4, 14));
    int failed = 0;
    bool has_fired = true;
    for (int call = 1; has_fired && call < 1000; ++call) {
      calendars.world.faults.FailAtCall(call);
      calendars.Rest();
      has_fired = calendars.world.faults.HasFired();
      calendars.world.faults.Disarm();
      EXPECT_THAT(calendars.Text(), StartsWith("EUR, Friday 14 April 2028: "));
      if (calendars.Text().find("cannot be read") != std::string::npos) {
        ++failed;
        calendars.ClickDay(Date(2028, 4, 13));
        calendars.ClickDay(Date(2028, 4, 14));
      } else {
        calendars.Tools().ClickTool("ID_Refresh");
      }
    }
    EXPECT_GT(failed, 10);
    EXPECT_EQ(calendars.Messages(), 0u);
    calendars.Rest();
    EXPECT_THAT(calendars.Text(), HasSubstr("should be Good Friday"));
  });
}

TEST(WhyPane, TellsNothingMoreOnceTheWindowHasClosed) {
  RunInFreshThread([] {
    WhyWindow calendars;
    calendars.OpenAt(Date(2028, 4, 14));
    calendars.Close();
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0u);
  });
}

}  // namespace
}  // namespace ferrowind
