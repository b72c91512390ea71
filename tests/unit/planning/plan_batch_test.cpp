#include "ferrowind/planning/plan_batch.h"

#include <gmock/gmock.h>

#include "tests/support/recording_action_observer.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;
using Kind = PlanOutcome::Kind;

constexpr const char* kTwoDays =
    "point | Good Friday | easter-2 | Friday before Easter Sunday\n"
    "celebration | Christmas Day | 12-25 | 25 December\n";
constexpr int kGoodFriday = 105;
const almanac::DateTables kNoTables;

/// Books of EUR and USD with Good Friday (14 April 2028) and Christmas Day; a calendar of EUR without any.
class BatchWorld : public MemoryPlanningWorld {
 public:
  explicit BatchWorld(platform::ActionObserver* action_observer = nullptr)
      : MemoryPlanningWorld(action_observer) {
    GiveBook(kEuro, "EUR", kTwoDays);
    GiveBook(kDollar, "USD", kTwoDays);
    CreateCalendar(kEuro, 2028);
  }
};

std::vector<std::string> SentencesOf(const std::vector<PlanOutcome>& outcomes) {
  std::vector<std::string> sentences;
  for (const PlanOutcome& outcome : outcomes) sentences.push_back(outcome.sentence);
  return sentences;
}

std::vector<Kind> KindsOf(const std::vector<PlanOutcome>& outcomes) {
  std::vector<Kind> kinds;
  for (const PlanOutcome& outcome : outcomes) kinds.push_back(outcome.kind);
  return kinds;
}

TEST(PlanBatch, MakesEachCalendarAsPlannedAndPlansItAnew) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    EXPECT_EQ(batch.CalendarsToChange(), 2U);
    EXPECT_EQ(batch.Totals().taken, 4U);
    EXPECT_THAT(SentencesOf(batch.Apply()), ElementsAre("EUR 2028 is as planned now.", "USD 2028 is made."));
    for (const auto& [code, id] : {std::pair("EUR", kEuro), std::pair("USD", kDollar)}) {
      EXPECT_THAT(BatchWorld::DaysOf(code, id, 2028),
                  ElementsAre("2028-04-14 Good Friday", "2028-12-25 Christmas Day"));
    }
    EXPECT_EQ(batch.CalendarsToChange(), 0U);
    EXPECT_THAT(batch.Apply(), IsEmpty());
  });
}

TEST(PlanBatch, LeavesTheDaysAloneThatWereLeftOut) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    batch.At(0).Take(kGoodFriday, false);
    EXPECT_EQ(batch.Totals().taken, 1U);
    EXPECT_EQ(batch.Totals().left_out, 1U);
    EXPECT_THAT(SentencesOf(batch.Apply()),
                ElementsAre("EUR 2028 is as planned now but for 1 day that is left out."));
    EXPECT_THAT(BatchWorld::DaysOf("EUR", kEuro, 2028), ElementsAre("2028-12-25 Christmas Day"));
    EXPECT_EQ(batch.CalendarsToChange(), 0U) << "left out for good";
    batch.At(0).Take(kGoodFriday, true);
    EXPECT_THAT(KindsOf(batch.Apply()), ElementsAre(Kind::kDone));
  });
}

TEST(PlanBatch, CallsNothingForACalendarThatIsLeftOut) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    batch.At(1).TakeAll(false);
    EXPECT_EQ(batch.CalendarsToChange(), 1U);
    EXPECT_THAT(SentencesOf(batch.Apply()), ElementsAre("EUR 2028 is as planned now."));
    EXPECT_THAT(LoadRules().calendars, ElementsAre(CalendarKey(kEuro, 2028)));
    batch.At(1).TakeAll(true);
    EXPECT_EQ(batch.At(1).Totals().taken, 2U);
  });
}

TEST(PlanBatch, KeepsWorkingDaysByExceptionUntilSomebodyTakesThem) {
  RunInFreshThread([] {
    BatchWorld world;
    BatchWorld::Except(kEuro, "2028-04-14", "Stock-taking");
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    EXPECT_EQ(batch.Totals().kept_exceptions, 1U);
    EXPECT_THAT(SentencesOf(batch.Apply()),
                ElementsAre("EUR 2028 is as planned now but for 1 working day by exception."));
    batch.At(0).Take(kGoodFriday, true);
    EXPECT_EQ(batch.Totals().lost_reasons, 1U);
    EXPECT_THAT(SentencesOf(batch.Apply()), ElementsAre("EUR 2028 is as planned now."));
  });
}

TEST(PlanBatch, KeepsClosedDaysThatTheRuleBookDoesNotHaveUntilSomebodyTakesThem) {
  RunInFreshThread([] {
    BatchWorld world;
    constexpr int kFair = 61;
    BatchWorld::Assign(kEuro, "2028-03-01", 4, BatchWorld::AddPoint("Fair", "2028-03-01"));
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    EXPECT_EQ(batch.Totals().kept_outside_book, 1U);
    EXPECT_THAT(
        SentencesOf(batch.Apply()),
        ElementsAre("EUR 2028 is as planned now but for 1 closed day that the rule book does not have."));
    EXPECT_THAT(BatchWorld::DaysOf("EUR", kEuro, 2028), Contains("2028-03-01 Fair"));
    batch.At(0).Take(kFair, true);
    EXPECT_THAT(SentencesOf(batch.Apply()), ElementsAre("EUR 2028 is as planned now."));
    EXPECT_THAT(BatchWorld::DaysOf("EUR", kEuro, 2028),
                ElementsAre("2028-04-14 Good Friday", "2028-12-25 Christmas Day"));
  });
}

TEST(PlanBatch, AppliesWhatIsLeftWhenARuleStandsInTheWay) {
  RunInFreshThread([] {
    BatchWorld world;
    const std::int32_t rule = BatchWorld::AddPoint("Good Friday", "2028-04-14");
    BatchWorld::Call("CldIUCelebrate", {{"ID2", rule}, {"Del", 2}});
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    batch.At(0).Take(kGoodFriday, true);
    EXPECT_EQ(batch.Totals().blocked, 1U) << "nobody can take it";
    EXPECT_THAT(SentencesOf(batch.Apply()),
                ElementsAre("EUR 2028 is as planned now but for 1 day whose rule stands in the way."));
    BatchWorld::Call("CldIUCelebrate", {{"ID2", rule}, {"Del", 4}});
    batch.PlanAnew();
    EXPECT_THAT(SentencesOf(batch.Apply()), ElementsAre("EUR 2028 is as planned now."));
  });
}

TEST(PlanBatch, RefusesAPlanThatBecameStaleShowsTheNewOneAndKeepsWhatWasLeftOut) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    batch.At(0).Take(kGoodFriday, false);
    const std::int32_t fair = BatchWorld::AddPoint("Fair", "2028-03-01");
    BatchWorld::Assign(kEuro, "2028-03-01", 4, fair);
    const auto outcomes = batch.Apply();
    EXPECT_THAT(KindsOf(outcomes), ElementsAre(Kind::kRefused, Kind::kDone)) << "the others go on";
    EXPECT_THAT(outcomes.front().sentence, HasSubstr("EUR 2028 was changed meanwhile"));
    EXPECT_THAT(BatchWorld::DaysOf("EUR", kEuro, 2028), ElementsAre("2028-03-01 Fair"));
    EXPECT_EQ(batch.At(0).Totals().taken, 1U) << "Christmas Day comes, the fair stays";
    EXPECT_EQ(batch.At(0).Totals().left_out, 1U);
    EXPECT_THAT(KindsOf(batch.Apply()), ElementsAre(Kind::kDone));
    EXPECT_THAT(BatchWorld::DaysOf("EUR", kEuro, 2028),
                ElementsAre("2028-03-01 Fair", "2028-12-25 Christmas Day"));
  });
}

TEST(PlanBatch, AsksAgainAboutAnExceptionThatIsAnotherByNow) {
  RunInFreshThread([] {
    BatchWorld world;
    BatchWorld::Except(kEuro, "2028-04-14", "");
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    batch.At(0).Take(kGoodFriday, true);
    batch.PlanAnew();
    EXPECT_EQ(batch.Totals().taken, 2U) << "it is the same";
    BatchWorld::Except(kEuro, "2028-04-14", "The board says so");
    batch.PlanAnew();
    EXPECT_EQ(batch.Totals().taken, 1U);
    EXPECT_EQ(batch.Totals().kept_exceptions, 1U);
  });
}

TEST(PlanBatch, LeavesNewDaysOfACalendarOutAllOfWhichWasLeftOut) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    batch.At(0).TakeAll(false);
    BatchWorld::GiveBook(kEuro, "EUR", std::string(kTwoDays) + "celebration | New Year | 01-01 |\n");
    batch.PlanAnew();
    EXPECT_EQ(batch.Totals().left_out, 3U);
  });
}

TEST(PlanBatch, LeavesNewDaysOfACalendarOutAllOfWhichWasLeftOutOneByOneAfterAnApply) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    (void)batch.Apply();
    BatchWorld::GiveBook(kEuro, "EUR", std::string(kTwoDays) + "celebration | New Year | 01-01 |\n");
    batch.PlanAnew();
    ASSERT_EQ(batch.Totals().taken, 1U);
    batch.At(0).Take(1, false);
    BatchWorld::GiveBook(
        kEuro, "EUR",
        std::string(kTwoDays) + "celebration | New Year | 01-01 |\ncelebration | Labour Day | 05-01 |\n");
    batch.PlanAnew();
    EXPECT_EQ(batch.Totals().taken, 0U);
    EXPECT_EQ(batch.Totals().left_out, 2U);
  });
}

TEST(PlanBatch, LeavesNewDaysOutThatComeWhileTheCalendarCannotBePlanned) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    batch.At(0).TakeAll(false);
    BatchWorld::GiveBook(kEuro, "EUR", std::string(kTwoDays) + "celebration | New Year | 01-01 |\n");
    batch.At(0).Fail("The database is away");
    batch.At(0).Fail("The database is still away");
    batch.PlanAnew();
    EXPECT_EQ(batch.Totals().taken, 0U);
    EXPECT_EQ(batch.Totals().left_out, 3U);
  });
}

TEST(PlanBatch, TakesNewDaysOfACalendarWhoseOnlyDifferencesWereExceptions) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    (void)batch.Apply();
    BatchWorld::Except(kEuro, "2028-04-14", "Stock-taking");
    batch.PlanAnew();
    ASSERT_EQ(batch.CalendarsToChange(), 0U);
    BatchWorld::GiveBook(kEuro, "EUR", std::string(kTwoDays) + "celebration | New Year | 01-01 |\n");
    batch.PlanAnew();
    EXPECT_EQ(batch.Totals().taken, 1U);
  });
}

TEST(PlanBatch, UndoesWhatItHasAppliedTheLastCallFirst) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    EXPECT_FALSE(batch.CanUndo());
    (void)batch.Apply();
    ASSERT_TRUE(batch.CanUndo());
    EXPECT_THAT(SentencesOf(batch.Undo()),
                ElementsAre("USD 2028 is as it was before.", "EUR 2028 is as it was before."));
    EXPECT_FALSE(batch.CanUndo());
    EXPECT_THAT(LoadRules().calendars, ElementsAre(CalendarKey(kEuro, 2028)));
    EXPECT_THAT(LoadRules().rules, SizeIs(1)) << "the rules that the plans added are gone again";
    EXPECT_EQ(batch.Totals().taken, 4U);
  });
}

TEST(PlanBatch, HasAfterUndoingTheSameDaysLeftOutAsBeforeApplying) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kDollar, 2028}});
    const auto before = batch.Totals();
    ASSERT_GT(before.taken, 1U);
    for (const auto& day : batch.Calendars().front().Preparation()->Compared().Days()) {
      if (!batch.Calendars().front().Takes(day)) continue;
      batch.At(0).Take(day.day_of_year, false);
      break;
    }
    (void)batch.Apply();
    ASSERT_EQ(batch.Totals().taken, 0U);
    (void)batch.Undo();
    EXPECT_EQ(batch.Totals().taken, before.taken - 1);
    EXPECT_EQ(batch.Totals().left_out, 1U);
  });
}

TEST(PlanBatch, CanStillUndoWhenALaterApplyHasChangedNothing) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    batch.At(1).TakeAll(false);
    (void)batch.Apply();
    BatchWorld::CreateCalendar(kDollar, 2028);
    batch.At(1).TakeAll(true);
    EXPECT_THAT(KindsOf(batch.Apply()), ElementsAre(Kind::kRefused));
    EXPECT_THAT(SentencesOf(batch.Undo()), ElementsAre("EUR 2028 is as it was before."));
  });
}

TEST(PlanBatch, DoesNotUndoWhatSomebodyHasChangedSince) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    (void)batch.Apply();
    BatchWorld::Except(kEuro, "2028-04-14", "Stock-taking");
    const auto outcomes = batch.Undo();
    EXPECT_THAT(KindsOf(outcomes), ElementsAre(Kind::kRefused));
    EXPECT_THAT(outcomes.front().sentence,
                AllOf(HasSubstr("EUR 2028: This cannot be undone"), HasSubstr("Undo that first.")));
    EXPECT_FALSE(batch.CanUndo());
    EXPECT_THAT(BatchWorld::DaysOf("EUR", kEuro, 2028), Contains("2028-12-25 Christmas Day"));
  });
}

TEST(PlanBatch, TellsWhyACalendarCannotBePlannedAndPlansTheOthers) {
  RunInFreshThread([] {
    BatchWorld world;
    constexpr std::int32_t kPound = 826;
    PlanBatch batch(kNoTables, {{kPound, 2028}, {kEuro, 1899}, {4711, 2028}, {kDollar, 2028}});
    EXPECT_THAT(batch.Calendars()[0].WhyNot(), HasSubstr("GBP has no book"));
    EXPECT_EQ(batch.Calendars()[1].WhyNot(), "Years can be planned from 1900 to 2199, not 1899");
    EXPECT_EQ(batch.Calendars()[2].WhyNot(), "There is no currency 4711");
    EXPECT_EQ(batch.Calendars()[2].Preparation(), nullptr);
    EXPECT_FALSE(batch.Calendars()[2].HasWork());
    EXPECT_THAT(SentencesOf(batch.Apply()), ElementsAre("USD 2028 is made."));
  });
}

TEST(SummaryOfPlans, TellsWhatWillHappenToOneCalendar) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kDollar, 2028}});
    EXPECT_EQ(SummaryOf(batch), "USD 2028: a new calendar, 2 days.");
    batch.At(0).Take(kGoodFriday, false);
    EXPECT_EQ(SummaryOf(batch), "USD 2028: a new calendar, 1 day; unchanged: 1 day that is left out.");
    batch.At(0).TakeAll(false);
    EXPECT_EQ(SummaryOf(batch), "USD 2028: no calendar is made.");
    EXPECT_EQ(SummaryOf(PlanBatch(kNoTables, {{kDollar, 1899}})), "1 calendar cannot be planned.");
  });
}

TEST(SummaryOfPlans, CountsWhatWillHappenToMany) {
  RunInFreshThread([] {
    BatchWorld world;
    BatchWorld::Except(kEuro, "2028-04-14", "Stock-taking");
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}, {kDollar, 1899}});
    EXPECT_EQ(SummaryOf(batch),
              "2 calendars: 3 days; unchanged: 1 working day by exception. 1 calendar cannot be planned.");
    batch.At(0).Take(kGoodFriday, true);
    EXPECT_EQ(SummaryOf(batch),
              "2 calendars: 4 days. 1 calendar cannot be planned. 1 working day by exception that has a "
              "reason will be closed.");
    batch.At(0).Take(kGoodFriday, false);
    (void)batch.Apply();
    EXPECT_EQ(SummaryOf(batch),
              "2 calendars are as planned but for 1 working day by exception. 1 calendar cannot be planned.");
  });
}

TEST(PlanBatch, PlansOrTellsWhyNotWhicheverCallFails) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    int failed = 0;
    for (int call = 1;; ++call) {
      world.world.faults.FailAtCall(call);
      batch.PlanAnew();
      if (!world.world.faults.HasFired()) break;
      const std::string& why_not = batch.Calendars()[0].WhyNot();
      EXPECT_EQ(batch.CalendarsToChange(), why_not.empty() ? 1U : 0U) << call;
      if (!why_not.empty()) ++failed;
    }
    EXPECT_GT(failed, 20);
    EXPECT_EQ(batch.CalendarsToChange(), 1U) << "when nothing fails any more";
  });
}

TEST(PlanBatch, EndsAsPlannedOnceAFailureIsOverWhicheverCallHasFailed) {
  RunInFreshThread([] {
    for (int call = 1;; ++call) {
      BatchWorld world;
      PlanBatch batch(kNoTables, {{kEuro, 2028}});
      world.world.faults.FailAtCall(call);
      (void)batch.Apply();
      const bool has_fired = world.world.faults.HasFired();
      world.world.faults.Disarm();
      batch.PlanAnew();
      (void)batch.Apply();
      EXPECT_THAT(BatchWorld::DaysOf("EUR", kEuro, 2028),
                  ElementsAre("2028-04-14 Good Friday", "2028-12-25 Christmas Day"))
          << call;
      if (!has_fired) break;
    }
  });
}

TEST(PlanBatch, TriesNoFurtherCalendarOnceACallHasFailed) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    world.world.faults.FailAtCall(1);
    const auto outcomes = batch.Apply();
    EXPECT_THAT(KindsOf(outcomes), ElementsAre(Kind::kFailed, Kind::kNotTried));
    EXPECT_THAT(outcomes[0].sentence, HasSubstr("Applying the plan of EUR 2028: "));
    EXPECT_EQ(outcomes[1].sentence, "USD 2028 was not tried.");
    EXPECT_THAT(KindsOf(batch.Apply()), ElementsAre(Kind::kDone, Kind::kDone));
  });
}

TEST(PlanBatch, TellsTheHostOfEachCallThatWritesAndHowItEnds) {
  RunInFreshThread([] {
    testing::RecordingActionObserver observer;
    BatchWorld world(&observer);
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    BatchWorld::CreateCalendar(kDollar, 2028);
    (void)batch.Apply();
    EXPECT_THAT(observer.events,
                ElementsAre("began apply plan", "began apply plan EUR 2028", "write 0", "ended",
                            "began apply plan USD 2028", "write 8", "ended", "ended"));
    observer.events.clear();
    (void)batch.Undo();
    EXPECT_THAT(observer.events, ElementsAre("began undo EUR 2028", "write 0", "ended"));
    observer.events.clear();
    world.world.faults.FailAtCall(1);
    (void)batch.Apply();
    EXPECT_THAT(observer.events,
                ElementsAre("began apply plan", "began apply plan EUR 2028",
                            HasSubstr("write -1 Applying the plan of EUR 2028"), "ended", "ended"));
  });
}

TEST(PlanBatch, CanUndoAgainWhatAFailureHasKeptFromBeingUndone) {
  RunInFreshThread([] {
    BatchWorld world;
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    (void)batch.Apply();
    world.world.faults.FailAtCall(1);
    const auto outcomes = batch.Undo();
    world.world.faults.Disarm();
    EXPECT_THAT(KindsOf(outcomes), ElementsAre(Kind::kFailed));
    EXPECT_THAT(outcomes.front().sentence, HasSubstr("USD 2028: Undoing the plan"));
    ASSERT_TRUE(batch.CanUndo());
    EXPECT_THAT(KindsOf(batch.Undo()), ElementsAre(Kind::kDone, Kind::kDone));
  });
}

}  // namespace
}  // namespace ferrowind::planning
