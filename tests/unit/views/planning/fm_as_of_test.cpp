// A calendar as it was at a moment that the operator names.
#include "ferrowind/views/planning/fm_as_of.h"

#include <gmock/gmock.h>

#include "tests/unit/views/planning/past_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessForm;
using headless::HeadlessLabel;
using headless::HeadlessTable;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::PastWorld;
using testing::Question;
using testing::RunInFreshThread;
using testing::WithQuestion;

constexpr const char* kDialog = "fmAsOf";
constexpr const char* kNoTime = "This is no time. Write one such as 14:05 or 14:05:31.";
constexpr const char* kNotThere = "There was no such calendar then.";

TEST(CalendarAtAMoment, IsShownAsItWasThen) {
  WithQuestion(
      [](Question& question) {
        question.Type("2026-01-06", "19:30:30");
        question.Show();
        EXPECT_FALSE(question.IsShown());
      },
      [](PastWorld& past) {
        EXPECT_EQ(past.Then().Caption(), "EUR 2028 as of 2026-01-06 Tue 19:30:30");
        EXPECT_EQ(past.Then().Part<HeadlessLabel>("lblThen").Text(),
                  "EUR 2028 as it was at: 2026-01-06 Tue 19:30:30");
        EXPECT_THAT(past.GoodFriday(), ElementsAre("Friday 14 April 2028", "Working day", ""));
        EXPECT_THAT(past.SeenByOperator(), IsEmpty());
        past.Then().PressEscape();
        EXPECT_FALSE(past.Then().IsShown());
      });
}

TEST(CalendarAtAMoment, HasTheChangesOfTheWholeSecondOrMinuteThatIsNamed) {
  for (const char* time : {"19:30:31", "19:30"}) {
    WithQuestion(
        [&](Question& question) {
          question.Type("2026-01-06", time);
          question.Show();
        },
        [](PastWorld& past) { EXPECT_EQ(past.GoodFriday().at(1), "Good Friday"); });
  }
}

TEST(CalendarAtAMoment, IsAskedForFromTheMomentOfTheCurrentChange) {
  WithQuestion(
      [](Question& question) {
        EXPECT_EQ(question.Asked(), "Show EUR 2028 as it was at this moment:");
        EXPECT_EQ(question.Date(), "2026-01-06 Tue");
        EXPECT_EQ(question.Time(), "19:30:31");
        EXPECT_EQ(question.Meaning(), "Tuesday 6 January 2026, 19:30:31");
        question.Show();
      },
      [](PastWorld& past) { EXPECT_EQ(past.GoodFriday().at(1), "Good Friday"); });
}

TEST(CalendarAtAMoment, IsToldInWordsWhileItIsTyped) {
  WithQuestion([](Question& question) {
    question.Type("01-05", "18:01");
    EXPECT_EQ(question.Meaning(), "Monday 5 January 2026, 18:01:59");
    question.Type("01-05", "18");
    EXPECT_EQ(question.Meaning(), kNoTime);
    question.Type("2026-02-30", "18:01");
    EXPECT_EQ(question.Meaning(), "This is no date. Write one such as 2028-12-31.");
  });
}

TEST(CalendarAtAMoment, IsNoneThatWasBeforeTheFirstChangeOrIsToCome) {
  WithQuestion(
      [](Question& question) {
        question.Type("2026-01-05", "18:00:09");
        question.Show();
        EXPECT_EQ(question.Meaning(), kNotThere);
        EXPECT_EQ(question.Focused(), "txtDate");
        question.Type("2999-12-31", "12:00");
        EXPECT_EQ(question.Meaning(), "This moment is still to come.");
        question.Show();
        EXPECT_EQ(question.Meaning(), "This moment is still to come.");
        question.Type("2026-01-06", "x");
        question.Show();
        EXPECT_EQ(question.Focused(), "txtTime");
        EXPECT_TRUE(question.IsShown());
      },
      [](PastWorld& past) {
        EXPECT_EQ(past.CountOfThen(), 0U);
        EXPECT_EQ(past.world.toolkit.BeepCount(), 3);
      });
}

TEST(CalendarAtAMoment, IsThePresentOneWhileItsMinuteIsNotOver) {
  RunInFreshThread([] {
    PastWorld past;
    // A server's clock may be before this computer's.
    past.world.database->SetMoment("2998-06-01T10:00:20.500Z");
    past.AssignGoodFriday();
    past.windows.OpenHistory({978, 2028});
    past.world.toolkit.ScriptModal(kDialog, [&](HeadlessForm& form) {
      Question question(form);
      question.Type(question.Date(), "19:00");
      question.Show();
    });
    past.History().PressShortcut("Ctrl+D");
    EXPECT_EQ(past.Then().Caption(), "EUR 2028 as of 2998-06-01 Fri 19:00:20");
  });
}

TEST(CalendarAtAMoment, IsLeftByCancelling) {
  WithQuestion([](Question& question) { question.Cancel(); },
               [](PastWorld& past) {
                 EXPECT_EQ(past.CountOfThen(), 0U);
                 EXPECT_EQ(past.world.toolkit.BeepCount(), 0);
               });
}

TEST(CalendarAtAMoment, IsThatOfTheCurrentChangeWhereAllCalendarsAreOnShow) {
  RunInFreshThread([] {
    PastWorld past;
    past.windows.OpenHistory({});
    auto& button = past.History().Part<headless::HeadlessButton>("cmdAsOf");
    std::string asked;
    past.world.toolkit.ScriptModal(kDialog, [&](HeadlessForm& form) {
      Question question(form);
      asked = question.Asked();
      question.Cancel();
    });
    button.Click();
    EXPECT_EQ(asked, "Show EUR 2028 as it was at this moment:");
    past.History().Part<HeadlessTable>("tblEntries").ClickRow("1");
    EXPECT_FALSE(button.Enabled()) << "a rule is of no calendar";
    past.History().PressShortcut("Ctrl+D");
    EXPECT_EQ(past.world.toolkit.CountOfForms(kDialog), 1U);
  });
}

TEST(CalendarAtAMoment, IsAskedForFromNowWhereNothingWasChanged) {
  RunInFreshThread([] {
    PastWorld past;
    past.windows.OpenHistory({840, 2030});
    past.world.toolkit.ScriptModal(kDialog, [&](HeadlessForm& form) {
      Question question(form);
      EXPECT_EQ(question.Asked(), "Show USD 2030 as it was at this moment:");
      EXPECT_GT(question.Date(), "2026-01-06 Tue");
      question.Show();
      EXPECT_EQ(question.Meaning(), kNotThere);
      question.Cancel();
    });
    past.History().PressShortcut("Ctrl+D");
    EXPECT_EQ(past.world.toolkit.CountOfForms(kDialog), 1U);
  });
}

TEST(CalendarAtAMoment, IsNotShownWhenTheWindowsAreClosedMeanwhile) {
  RunInFreshThread([] {
    PastWorld past;
    past.windows.OpenHistory({978, 2028});
    past.world.toolkit.ScriptModal(kDialog, [&](HeadlessForm& form) {
      EXPECT_TRUE(past.windows.CloseAll());
      EXPECT_FALSE(form.IsShown());
    });
    past.History().PressShortcut("Ctrl+D");
    EXPECT_EQ(past.CountOfThen(), 0U);
    EXPECT_THAT(past.SeenByOperator(), IsEmpty());
  });
}

/// What is passed over without a word: by the gateway each parameter and each record set for itself, and
/// where a window stood.
bool IsPassedOver(const std::string& call) {
  return call == "command.SetParameter" || call == "services.ReadSetting" ||
         call == "services.TraceMessage" || call.starts_with("cursor.");
}

TEST(CalendarAtAMoment, TellsEveryFailureAndGoesOn) {
  bool has_fired = true;
  for (int call = 1; has_fired; ++call) {
    ASSERT_LT(call, 1000);
    RunInFreshThread([&] {
      PastWorld past;
      past.windows.OpenHistory({978, 2028});
      past.world.log.Clear();
      const auto ask = [&] {
        past.world.toolkit.ScriptModal(kDialog, [](HeadlessForm& form) {
          Question question(form);
          question.Type("2026-01-06", "19:30:30");
          question.Show();
          if (question.IsShown()) question.Cancel();
        });
        past.History().PressShortcut("Ctrl+D");
      };
      past.world.faults.FailAtCall(call);
      ask();
      has_fired = past.world.faults.HasFired();
      const std::string failed = past.world.faults.FailedCall();
      past.world.faults.Disarm();
      if (has_fired && !IsPassedOver(failed)) {
        EXPECT_THAT(past.SeenByOperator(), Not(IsEmpty())) << failed;
      }
      ask();
      EXPECT_EQ(past.GoodFriday().at(1), "Working day") << failed;
      EXPECT_TRUE(past.windows.CloseAll()) << failed;
    });
  }
}

}  // namespace
}  // namespace ferrowind
