// Refreshing the Calendars window.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using platform::Failure;
using testing::CalendarsWorld;
using testing::ExpectDaysAsked;
using testing::ExpectInOrder;
using testing::RunInFreshThread;
using Texts = std::vector<std::string>;

TEST(Refresh, AnimatesLocksReloadsSelectsUnlocksShowsAndStopsInThisOrder) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_Refresh");
    ExpectInOrder(
        calendars.world.log,
        {R"(operator.ssatb.ClickTool("ID_Refresh"))", "anim.Play()", "toolkit.LockUpdates(sssp)",
         R"(dictionary.dic_GetDicRecByFilter("Ccy", "CcyType = 0"))", "tvCalendar.Clear()",
         R"(command.SetText("CldAllInfo"))",
         R"(tvCalendar.AddChild("K840", "K840_2026", "2026", "Calendar"))",
         R"(tvCalendar.Select("K978_2026"))", "toolkit.UnlockUpdates()", R"(command.SetText("CldGetMain"))",
         "gexCalendar.Refresh(True)", "toolkit.UnlockUpdates()", "anim.Stop()"});
    EXPECT_EQ(calendars.world.log.Calls().back(), "anim.Stop()");
    EXPECT_FALSE(calendars.Animation().IsPlaying());
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  });
}

TEST(Refresh, KeepsTheSelectedNode) {
  for (const char* node : {"K978_2027", "K840"}) {
    RunInFreshThread([node] {
      CalendarsWorld calendars;
      calendars.OpenAt(node);
      calendars.Click("ID_Refresh");
      EXPECT_EQ(calendars.Tree().Selected(), node);
    });
  }
}

TEST(Refresh, WithoutASelectionSelectsTheFirstNode) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.Tree().Selected(), "K978");
    EXPECT_FALSE(calendars.Grid().Enabled());
  });
}

TEST(Refresh, ShowsWhatIsNewInTheDatabase) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.dictionary->SetCurrencies({{756, "CHF"}, {978, "EUR"}});
    calendars.AnswerAllInfo({{978, 2026}, {756, 2030}});
    calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.Tree().Roots(), (Texts{"K756", "K978"}));
    EXPECT_EQ(calendars.Tree().Children("K756"), Texts{"K756_2030"});
    EXPECT_EQ(calendars.Tree().Children("K978"), Texts{"K978_2026"});
  });
}

TEST(Refresh, WithANodeThatIsGoneIgnoresItAndShowsWhatTheReloadLeftSelected) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2027");
    calendars.AnswerAllInfo({{978, 2026}});
    calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.Tree().Selected(), std::nullopt);
    EXPECT_FALSE(calendars.Grid().Enabled());
    EXPECT_EQ(calendars.Grid().Records(), nullptr);
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(Refresh, OfATreeThatBecomesEmptySelectsNothingAndDisablesEverything) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.dictionary->SetCurrencies({});
    calendars.AnswerAllInfo({});
    calendars.Click("ID_Refresh");
    EXPECT_TRUE(calendars.world.log.StartingWith("tvCalendar.Select").empty());
    EXPECT_FALSE(calendars.Grid().Enabled());
    EXPECT_FALSE(calendars.Tools().ToolEnabled("ID_New"));
    EXPECT_FALSE(calendars.Tools().ToolEnabled("ID_Copy"));
  });
}

TEST(Refresh, WhoseCurrenciesFailLeavesTheTreeAndStillShowsTheSelectedDays) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.faults.FailAtCall(1);
    calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.world.faults.FailedCall(), "dictionary.dic_GetDicRecByFilter");
    EXPECT_EQ(calendars.Tree().Selected(), "K978_2026");
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 2u);
    EXPECT_TRUE(calendars.SeenByOperator().empty());
    EXPECT_FALSE(calendars.Animation().IsPlaying());
  });
}

TEST(Refresh, WhoseCalendarsFailLeavesTheCurrenciesAndShowsNoMessage) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.commands.FailAt(headless::CommandStep::kExecute, Failure(5, "database is locked"));
    calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.Tree().Count(), 3);
    EXPECT_EQ(calendars.Tree().Selected(), std::nullopt);
    EXPECT_FALSE(calendars.Grid().Enabled());
    EXPECT_TRUE(calendars.SeenByOperator().empty());
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  });
}

TEST(Refresh, WhoseDaysCannotBeShownReportsItAndStopsTheAnimation) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerAllInfo({{978, "no year"}});
    calendars.OpenAt("K978_no year");
    calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.SeenByOperator(), Texts{R"(services.ReportError(13, "Type mismatch"))"});
    EXPECT_EQ(calendars.world.log.Calls().back(), "anim.Stop()");
    EXPECT_FALSE(calendars.Animation().IsPlaying());
  });
}

TEST(Refresh, GoesOnWithoutAnAnimation) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    const platform::Platform elsewhere{calendars.platform.objects, calendars.platform.commands,
                                       calendars.platform.toolkit, calendars.platform.locale,
                                       calendars.platform.clock,   "/nowhere"};
    const auto window = testing::CalendarsWindowUnderTest::Create(elsewhere);
    ASSERT_TRUE(window->Init(calendars.headers, calendars.holiday_headers));
    window->Show();
    auto& form = calendars.world.toolkit.FormNamed("fmCalendar");
    form.Part<headless::HeadlessToolBar>("ssatb").ClickTool("ID_Refresh");
    EXPECT_EQ(form.Part<headless::HeadlessTree>("tvCalendar").Selected(), "K978");
    EXPECT_TRUE(calendars.world.log.Contains("anim.Play()"));
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(Refresh, ManyTimesInARowLeavesTheSameTreeAndNoLock) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    for (int i = 0; i < 500; ++i) calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.Tree().Count(), 6);
    EXPECT_EQ(calendars.Tree().Selected(), "K978_2026");
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
    EXPECT_EQ(calendars.Grid().RowCount(), 5);
  });
}

}  // namespace
}  // namespace ferrowind
