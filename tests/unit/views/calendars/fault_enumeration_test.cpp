// Every call of the surroundings that a scenario makes fails in turn.
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_text_box.h"

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using testing::CalendarsWorld;
using testing::RunInFreshThread;

/// More than any scenario makes: a plan that fires forever would otherwise never end.
constexpr int kMostCalls = 1000;

void ClickIn(CalendarsWorld& calendars, const std::string& form, const std::string& button) {
  calendars.world.toolkit.ScriptModal(
      form, [button](HeadlessForm& shown) { shown.Part<HeadlessButton>(button).Click(); });
}

void ExpectUsableAndClosable(CalendarsWorld& calendars) {
  EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  EXPECT_FALSE(calendars.Animation().IsPlaying());
  ASSERT_TRUE(calendars.Form().IsShown());
  EXPECT_NO_THROW(calendars.Click("ID_Refresh"));
  EXPECT_NO_THROW(calendars.SelectNode("K840_2026"));
  EXPECT_EQ(calendars.Grid().RowCount(), 5);
  EXPECT_TRUE(calendars.Grid().Enabled());
  EXPECT_TRUE(calendars.Form().CloseByOperator());
  EXPECT_TRUE(calendars.Form().HasUnloaded());
}

/// Runs the scenario on the window at EUR 2026, each time with the next call failing, until none fails any
/// more.
void FailEachCallOf(const std::function<void(CalendarsWorld& calendars)>& scenario, int fewest_calls) {
  int call = 1;
  for (bool has_fired = true; has_fired && call < kMostCalls; ++call) {
    RunInFreshThread([&] {
      CalendarsWorld calendars;
      calendars.AnswerAllInfoWithARule();
      calendars.OpenAt("K978_2026");
      calendars.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(scenario(calendars));
      has_fired = calendars.world.faults.HasFired();
      calendars.world.faults.Disarm();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + calendars.world.faults.FailedCall());
      ExpectUsableAndClosable(calendars);
    });
  }
  EXPECT_GT(call, fewest_calls) << "the scenario did not run";
  EXPECT_LT(call, kMostCalls);
}

TEST(CalendarsFaults, AtAnyCallOfTheStartGiveAReadyWindowOrAFailedOneWithItsMessage) {
  int call = 1;
  for (bool has_fired = true; has_fired && call < kMostCalls; ++call) {
    RunInFreshThread([&] {
      CalendarsWorld calendars;
      calendars.window = testing::CalendarsWindowUnderTest::Create(calendars.platform);
      auto& form = calendars.world.toolkit.FormNamed("fmCalendar");
      calendars.world.faults.FailAtCall(call);
      bool is_ready = false;
      EXPECT_NO_THROW(is_ready = calendars.window->Init(calendars.headers, calendars.holiday_headers));
      const auto& faults = calendars.world.faults;
      has_fired = faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + faults.FailedCall());
      EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
      EXPECT_EQ(form.HasUnloaded(), !is_ready);
      EXPECT_EQ(calendars.world.services->Messages().size(), is_ready ? 0u : 1u);
      calendars.world.faults.Disarm();
      if (!is_ready) return;
      calendars.window->Show();
      EXPECT_TRUE(calendars.window->ForceClosing());
      EXPECT_TRUE(form.HasUnloaded());
    });
  }
  EXPECT_GT(call, 15) << "the start did not run";
  EXPECT_LT(call, kMostCalls);
}

TEST(CalendarsFaults, AtAnyCallOfARefreshLeaveTheWindowUsable) {
  FailEachCallOf([](CalendarsWorld& calendars) { calendars.Click("ID_Refresh"); }, 20);
}

TEST(CalendarsFaults, AtAnyCallOfSelectingACalendarLeaveTheWindowUsable) {
  FailEachCallOf([](CalendarsWorld& calendars) { calendars.Tree().ClickNode("K978_2027"); }, 10);
}

TEST(CalendarsFaults, AtAnyCallOfSelectingACalendarLetADayCommandChangeNoOtherThanTheOneOnShow) {
  FailEachCallOf(
      [](CalendarsWorld& calendars) {
        const auto euro_days = CalendarsWorld::UsualDays();
        const testing::Rows dollar_days(euro_days.begin(), euro_days.begin() + 3);
        calendars.AnswerDays(dollar_days);
        calendars.SelectNode("K840_2026");
        calendars.world.faults.Disarm();
        const bool shows_dollar = calendars.Grid().RowCount() == 3;
        if (calendars.Grid().RowCount() > 0) calendars.ChooseForDay(1, "ID_Except");
        for (const auto& change : calendars.CallsOf("CldIUMain")) {
          EXPECT_EQ(change.Parameter("@ID1"), testing::Value(shows_dollar ? 840 : 978))
              << calendars.world.faults.FailedCall();
        }
        calendars.AnswerDays(euro_days);
      },
      10);
}

TEST(CalendarsFaults, AtAnyCallOfExpandingAndCollapsingLeaveTheWindowUsable) {
  FailEachCallOf(
      [](CalendarsWorld& calendars) {
        calendars.Click("ID_Expand");
        calendars.Click("ID_Collapse");
      },
      10);
}

TEST(CalendarsFaults, AtAnyCallOfExceptingADayLeaveTheWindowUsable) {
  FailEachCallOf([](CalendarsWorld& calendars) { calendars.ChooseForDay(2, "ID_Except"); }, 25);
}

TEST(CalendarsFaults, AtAnyCallOfExceptingADayWithAMessageLeaveTheWindowUsable) {
  FailEachCallOf(
      [](CalendarsWorld& calendars) {
        ClickIn(calendars, "fmExceptMess", "cmdExcept");
        calendars.ChooseForDay(2, "ID_Except2");
      },
      25);
}

TEST(CalendarsFaults, AtAnyCallOfAssigningHolidaysLeaveTheWindowUsable) {
  for (const char* tool : {"ID_AssignSingle", "ID_AssignMany"}) {
    FailEachCallOf(
        [tool](CalendarsWorld& calendars) {
          calendars.world.toolkit.ScriptModal("fmEnterHolidays", [](HeadlessForm& form) {
            auto& assign = form.Part<HeadlessButton>("cmdAction5");
            form.Part<headless::HeadlessGrid>("gexHolidays").ClickRow(1);
            if (assign.Enabled()) assign.Click();
            if (form.IsShown()) {
              EXPECT_TRUE(form.CloseByOperator());
            }
          });
          calendars.ChooseForDay(2, tool);
        },
        25);
  }
}

TEST(CalendarsFaults, AtAnyCallOfANewCalendarLeaveTheWindowUsable) {
  FailEachCallOf(
      [](CalendarsWorld& calendars) {
        ClickIn(calendars, "fmSelectYear", "cmdCreate");
        calendars.Click("ID_New");
      },
      30);
}

TEST(CalendarsFaults, AtAnyCallOfClosingLetTheWindowClose) {
  int call = 1;
  for (bool has_fired = true; has_fired && call < kMostCalls; ++call) {
    RunInFreshThread([&] {
      CalendarsWorld calendars;
      calendars.OpenAt("K978_2026");
      calendars.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(EXPECT_TRUE(calendars.window->ForceClosing()));
      has_fired = calendars.world.faults.HasFired();
      EXPECT_TRUE(calendars.Form().HasUnloaded());
    });
  }
  EXPECT_GT(call, 5) << "closing called nothing";
  EXPECT_LT(call, kMostCalls);
}

}  // namespace
}  // namespace ferrowind
