// How a Calendars window learns that somebody else has changed what it shows.

#include <cstdlib>

#include <gmock/gmock.h>

#include "tests/unit/views/planning/memory_calendars.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using platform::Date;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using testing::MemoryCalendars;
using testing::RunInFreshThread;
using ::testing::StartsWith;

constexpr std::int32_t kLook = 2000;

/// A window with the days of EUR 2028 on show that has looked once.
void WithWindow(const std::function<void(MemoryCalendars&)>& body) {
  RunInFreshThread([&] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    calendars.world.toolkit.Advance(kLook);
    ASSERT_FALSE(calendars.IsShown("pnlFollow"));
    body(calendars);
  });
}

void AnnaAssigns(MemoryCalendars& calendars, const Date& date = Date(2028, 6, 1)) {
  calendars.ActAs("anna");
  calendars.Assign(4, 3, date);
}

TEST(FollowBar, SaysWhoChangedTheCalendarOnShowAndWhat) {
  WithWindow([](MemoryCalendars& calendars) {
    AnnaAssigns(calendars);
    EXPECT_FALSE(calendars.IsShown("pnlFollow"));
    calendars.world.toolkit.Advance(kLook);
    EXPECT_TRUE(calendars.IsShown("pnlFollow"));
    EXPECT_THAT(calendars.LabelText("lblFollow"), StartsWith("anna changed this calendar, "));
    EXPECT_THAT(calendars.LabelText("lblFollow"),
                EndsWith(": Assigned Good Friday to Thursday 1 June 2028."));
  });
}

TEST(FollowBar, ChangesNothingOnShowUntilItIsAskedTo) {
  WithWindow([](MemoryCalendars& calendars) {
    calendars.Grid().ClickRow(10);
    const auto days = calendars.Grid().Records();
    AnnaAssigns(calendars);
    calendars.world.toolkit.Advance(kLook);
    EXPECT_EQ(calendars.Grid().Records(), days);
    EXPECT_EQ(calendars.CurrentDate(), "2028-01-10");

    calendars.Part<HeadlessButton>("cmdFollow").Click();
    EXPECT_FALSE(calendars.IsShown("pnlFollow"));
    EXPECT_EQ(calendars.Grid().CellText(153, "HolidayName"), "Good Friday");
    EXPECT_EQ(calendars.CurrentDate(), "2028-01-10");
    calendars.world.toolkit.Advance(kLook);
    EXPECT_FALSE(calendars.IsShown("pnlFollow"));
  });
}

TEST(FollowBar, TellsNothingOfOnesOwnChanges) {
  WithWindow([](MemoryCalendars& calendars) {
    calendars.Tools().ChooseFromNextPopup("ID_Except");
    calendars.Grid().RightClickRow(105);
    ASSERT_EQ(calendars.Grid().CellText(105, "HolidayName"), "Working day by exception");
    calendars.world.toolkit.Advance(kLook);
    EXPECT_FALSE(calendars.IsShown("pnlFollow"));
  });
}

TEST(FollowBar, TellsNothingOfOtherCalendars) {
  WithWindow([](MemoryCalendars& calendars) {
    AnnaAssigns(calendars, Date(2027, 6, 1));
    calendars.world.toolkit.Advance(kLook);
    EXPECT_FALSE(calendars.IsShown("pnlFollow"));
  });
}

TEST(FollowBar, TellsOfARuleThatTheCalendarHas) {
  WithWindow([](MemoryCalendars& calendars) {
    calendars.ActAs("anna");
    calendars.Call(
        "CldIUCelebrate",
        {{"ID2", 3}, {"Name1", "Karfreitag"}, {"TID1", 4}, {"D1", Date(2028, 4, 14)}, {"MY", 4}, {"MD", 14}});
    calendars.ActAs("bob");
    calendars.Assign(4, 3, Date(2027, 6, 1));
    calendars.world.toolkit.Advance(kLook);
    EXPECT_TRUE(calendars.IsShown("pnlFollow"));
    EXPECT_THAT(calendars.LabelText("lblFollow"), StartsWith("anna changed this calendar, "));
  });
}

TEST(FollowBar, TakesItBackWhenTheChangeIsUndone) {
  WithWindow([](MemoryCalendars& calendars) {
    AnnaAssigns(calendars);
    calendars.world.toolkit.Advance(kLook);
    ASSERT_TRUE(calendars.IsShown("pnlFollow"));
    const auto entry = static_cast<std::int32_t>(calendars.world.database->History().size());
    calendars.Call("CldUndo", {{"EntryID", entry}});
    calendars.world.toolkit.Advance(kLook);
    EXPECT_FALSE(calendars.IsShown("pnlFollow"));
  });
}

TEST(FollowBar, SaysThatTheCalendarWasRemoved) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2029}});
    const auto created = static_cast<std::int32_t>(calendars.world.database->History().size());
    calendars.OpenAt(2029);
    calendars.world.toolkit.Advance(kLook);
    calendars.ActAs("anna");
    calendars.Call("CldUndo", {{"EntryID", created}});
    calendars.world.toolkit.Advance(kLook);
    EXPECT_THAT(calendars.LabelText("lblFollow"), StartsWith("anna removed this calendar, "));
  });
}

TEST(FollowBar, AsksTheDatabaseNothingWhileNothingHappens) {
  WithWindow([](MemoryCalendars& calendars) {
    calendars.world.log.Clear();
    for (int i = 0; i < 10; ++i) calendars.world.toolkit.Advance(kLook);
    EXPECT_THAT(calendars.world.log.Calls(),
                ::testing::Not(::testing::Contains(::testing::HasSubstr("TraceMessage"))));
  });
}

TEST(FollowBar, LooksNoMoreOnceTheWindowIsClosed) {
  WithWindow([](MemoryCalendars& calendars) {
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 2U) << "for changes, and for silence";
    calendars.Close();
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0U);
  });
}

TEST(FollowBar, GoesOnAfterAnyFailureAndTellsTheOperatorOfNone) {
  for (int call = 1;; ++call) {
    bool has_fired = false;
    RunInFreshThread([&] {
      MemoryCalendars calendars;
      calendars.OpenAt(2028);
      calendars.world.toolkit.Advance(kLook);
      AnnaAssigns(calendars);
      calendars.world.faults.FailAtCall(call);
      calendars.world.toolkit.Advance(kLook);
      has_fired = calendars.world.faults.HasFired();
      const std::string failed = calendars.world.faults.FailedCall();
      calendars.world.faults.Disarm();
      calendars.world.toolkit.Advance(kLook);
      EXPECT_TRUE(calendars.IsShown("pnlFollow")) << failed;
      EXPECT_EQ(Module().pending_failure_count, 0) << failed;
      for (const std::string& seen : calendars.world.log.Calls()) {
        EXPECT_THAT(seen, ::testing::Not(StartsWith("services.ReportError("))) << failed;
      }
    });
    if (!has_fired) break;
    ASSERT_LT(call, 500);
  }
}

}  // namespace
}  // namespace ferrowind
