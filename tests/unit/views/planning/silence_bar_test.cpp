// What windows tell of a server that does not answer.

#include <chrono>
#include <optional>

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/data/run_handler.h"

#include "tests/support/failure_of.h"
#include "tests/unit/views/planning/memory_calendars.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessLabel;
using platform::Date;
using std::chrono::milliseconds;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::MemoryCalendars;
using ::testing::Not;
using testing::RunInFreshThread;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr std::int32_t kSecond = 1000;
constexpr std::int32_t kEuro = 978;
constexpr const char* kSentence = "The server does not answer. Nothing can be read or changed until it does.";

/// Windows over a database of which a test says when it is silent.
class SilentWorld : public MemoryCalendars {
 public:
  void TrySoon(std::optional<milliseconds> until_next_try) {
    world.database->Silence().until_next_try = until_next_try;
    world.toolkit.Advance(kSecond);
  }
  headless::HeadlessForm& OpenBoard() {
    windows.OpenReadiness();
    return world.toolkit.FormNamed("fmReadiness");
  }
  [[nodiscard]] std::vector<std::string> Announced() const {
    std::vector<std::string> announced;
    for (const std::string& call : world.log.Calls())
      if (call.find("Announce") != std::string::npos) announced.push_back(call);
    return announced;
  }
};

/// With the days of EUR 2028 on show.
void WithCalendars(const std::function<void(SilentWorld&)>& body) {
  RunInFreshThread([&] {
    SilentWorld calendars;
    calendars.OpenAt(2028);
    calendars.world.toolkit.Advance(2 * kSecond);
    ASSERT_FALSE(calendars.IsShown("pnlSilence"));
    body(calendars);
  });
}

TEST(SilenceBar, SaysThatTheServerDoesNotAnswerAndCountsTheSecondsDown) {
  WithCalendars([](SilentWorld& calendars) {
    calendars.TrySoon(milliseconds(4100));
    EXPECT_TRUE(calendars.IsShown("pnlSilence"));
    EXPECT_EQ(calendars.LabelText("lblSilence"), kSentence);
    EXPECT_EQ(calendars.LabelText("lblNextTry"), "Next try in 5 seconds");
    calendars.TrySoon(milliseconds(3000));
    EXPECT_EQ(calendars.LabelText("lblNextTry"), "Next try in 3 seconds");
    calendars.TrySoon(milliseconds(10));
    EXPECT_EQ(calendars.LabelText("lblNextTry"), "Next try in 1 second");
  });
}

TEST(SilenceBar, IsAnnouncedOnceAndNotEverySecond) {
  WithCalendars([](SilentWorld& calendars) {
    calendars.world.log.Clear();
    for (int left = 5; left > 0; --left) calendars.TrySoon(milliseconds(left * kSecond));
    EXPECT_THAT(calendars.Announced(), SizeIs(1));
    EXPECT_THAT(calendars.Announced().front(), HasSubstr(kSentence));
  });
}

TEST(SilenceBar, TriesAtOnceWhenTheOperatorWantsAndTellsWhatItCameTo) {
  WithCalendars([](SilentWorld& calendars) {
    calendars.TrySoon(milliseconds(2500));
    calendars.world.log.Clear();
    calendars.Part<HeadlessButton>("cmdTryNow").Click();
    EXPECT_EQ(calendars.world.database->Silence().tries_asked_for, 1);
    EXPECT_THAT(calendars.Announced(), IsEmpty()) << "before there can be an answer";
    calendars.TrySoon(milliseconds(4900));
    calendars.TrySoon(milliseconds(3900));
    EXPECT_THAT(calendars.Announced(), SizeIs(1));
    EXPECT_THAT(calendars.Announced().front(), HasSubstr("Next try in 5 seconds"));
  });
}

TEST(SilenceBar, GoesWhenTheServerAnswersAndLeavesTheNews) {
  WithCalendars([](SilentWorld& calendars) {
    calendars.TrySoon(milliseconds(5000));
    const auto days = calendars.Grid().Records();
    calendars.TrySoon(std::nullopt);
    EXPECT_FALSE(calendars.IsShown("pnlSilence"));
    EXPECT_EQ(calendars.Grid().Records(), days) << "what is on show is the operator's to renew";
    calendars.ActAs("anna");
    calendars.Assign(4, 3, Date(2028, 6, 1));
    calendars.TrySoon(milliseconds(5000));
    calendars.TrySoon(std::nullopt);
    calendars.world.toolkit.Advance(2 * kSecond);
    EXPECT_FALSE(calendars.IsShown("pnlSilence"));
    EXPECT_THAT(calendars.LabelText("lblFollow"), StartsWith("anna changed this calendar, "));
  });
}

TEST(SilenceBar, LooksOftenEnoughToConnectInASecondAndSeldomWhileTheServerAnswers) {
  WithCalendars([](SilentWorld& calendars) {
    calendars.TrySoon(milliseconds(5000));
    calendars.world.database->Silence().until_next_try.reset();
    calendars.world.toolkit.Advance(kSecond / 10);
    EXPECT_FALSE(calendars.IsShown("pnlSilence"));
    calendars.world.database->Silence().until_next_try = milliseconds(5000);
    calendars.world.toolkit.Advance(kSecond / 2);
    EXPECT_FALSE(calendars.IsShown("pnlSilence"));
  });
}

TEST(SilenceBar, IsNotThereWhereAHostWantsNoAdditions) {
  RunInFreshThread([] {
    SilentWorld calendars;
    calendars.platform.additions = nullptr;
    calendars.OpenAt(2028);
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0U);
    EXPECT_THAT(testing::FailureOf([&] {
                  static_cast<void>(calendars.Form().ControlNamed("pnlSilence"));
                }).Description(),
                HasSubstr("pnlSilence"));
  });
}

TEST(SilenceBar, StaysAwayWhereNothingWatchesTheDatabase) {
  RunInFreshThread([] {
    SilentWorld calendars;
    calendars.platform.change_watches = nullptr;
    auto& board = calendars.OpenBoard();
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0U);
    EXPECT_FALSE(board.ControlNamed("pnlSilence").Visible());
    board.Part<HeadlessButton>("cmdTryNow").Click();
    EXPECT_FALSE(board.ControlNamed("pnlSilence").Visible());
  });
}

TEST(SilenceBar, OfTheBoardComesAndGoesAndTheBoardReadsWhatItCouldNotRead) {
  RunInFreshThread([] {
    SilentWorld calendars;
    auto& board = calendars.OpenBoard();
    ASSERT_FALSE(board.ControlNamed("pnlSilence").Visible());
    calendars.TrySoon(milliseconds(5000));
    EXPECT_TRUE(board.ControlNamed("pnlSilence").Visible());
    board.Part<HeadlessButton>("cmdRefresh").Click();
    ASSERT_TRUE(board.ControlNamed("lblProblem").Visible());
    calendars.TrySoon(std::nullopt);
    EXPECT_FALSE(board.ControlNamed("pnlSilence").Visible());
    EXPECT_FALSE(board.ControlNamed("lblProblem").Visible());
    EXPECT_TRUE(calendars.windows.CloseAll());
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0U);
  });
}

struct OpenedWindow {
  const char* form;
  void (*open)(PlanningWindows& windows);
};

class SilenceBarOfWindow : public ::testing::TestWithParam<OpenedWindow> {};

TEST_P(SilenceBarOfWindow, ComesAndGoesAndLeavesNothingBehind) {
  RunInFreshThread([] {
    SilentWorld calendars;
    GetParam().open(calendars.windows);
    auto& form = calendars.world.toolkit.FormNamed(GetParam().form);
    EXPECT_FALSE(form.ControlNamed("pnlSilence").Visible());
    calendars.TrySoon(milliseconds(4100));
    EXPECT_TRUE(form.ControlNamed("pnlSilence").Visible());
    EXPECT_EQ(form.Part<HeadlessLabel>("lblSilence").Text(), kSentence);
    EXPECT_EQ(form.Part<HeadlessLabel>("lblNextTry").Text(), "Next try in 5 seconds");
    form.Part<HeadlessButton>("cmdTryNow").Click();
    EXPECT_EQ(calendars.world.database->Silence().tries_asked_for, 1);
    calendars.TrySoon(std::nullopt);
    EXPECT_FALSE(form.ControlNamed("pnlSilence").Visible());
    EXPECT_TRUE(calendars.windows.CloseAll());
    EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0U);
  });
}

INSTANTIATE_TEST_SUITE_P(
    Planning, SilenceBarOfWindow,
    ::testing::Values(OpenedWindow{"fmReadiness", [](auto& windows) { windows.OpenReadiness(); }},
                      OpenedWindow{"fmYearPlan",
                                   [](auto& windows) {
                                     windows.OpenYearPlan({{kEuro, 2028}});
                                   }},
                      OpenedWindow{"fmHistory", [](auto& windows) { windows.OpenHistory({}); }},
                      OpenedWindow{"fmRuleBook", [](auto& windows) { windows.OpenRuleBook(kEuro); }},
                      OpenedWindow{"fmYearPlanner",
                                   [](auto& windows) { windows.OpenYearPlanner({kEuro}, 2028); }}),
    [](const auto& window) { return std::string(window.param.form); });

TEST(SilenceBar, OfAPlanGoesAndThePlanIsMadeThatCouldNotBeMade) {
  RunInFreshThread([] {
    SilentWorld calendars;
    calendars.windows.OpenYearPlan({{kEuro, 2028}});
    auto& plan = calendars.world.toolkit.FormNamed("fmYearPlan");
    const auto& lines = plan.Part<headless::HeadlessTable>("tblPlan");
    const auto planned = lines.RowKeys();
    calendars.TrySoon(milliseconds(5000));
    plan.Part<headless::HeadlessToolBar>("tbPlan").ClickTool("ID_Refresh");
    ASSERT_THAT(lines.RowKeys(), ElementsAre("978/2028/not-planned"));
    calendars.TrySoon(std::nullopt);
    EXPECT_EQ(lines.RowKeys(), planned);
  });
}

TEST(SilenceBar, AWindowOpensAlsoWhenNobodyCanWatchForSilence) {
  for (int call = 1;; ++call) {
    ASSERT_LT(call, 500) << "no call makes a watch";
    std::string failed;
    RunInFreshThread([&] {
      SilentWorld calendars;
      calendars.world.faults.FailAtCall(call);
      RunHandler(calendars.platform, [&] { calendars.windows.OpenReadiness(); });
      failed = calendars.world.faults.FailedCall();
      calendars.world.faults.Disarm();
      if (failed != "change_watches.WatchSilence") return;
      EXPECT_TRUE(calendars.world.toolkit.FormNamed("fmReadiness").IsShown());
      EXPECT_EQ(calendars.world.toolkit.WaitingTimers(), 0U);
      EXPECT_THAT(calendars.world.log.Calls(), Not(Contains(StartsWith("services.ReportError("))));
    });
    if (failed == "change_watches.WatchSilence") break;
  }
}

}  // namespace
}  // namespace ferrowind
