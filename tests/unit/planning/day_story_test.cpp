// What makes a day of a calendar what it is.
#include "ferrowind/planning/day_story.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/euro_world.h"

namespace ferrowind::planning {
namespace {

using platform::Date;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using testing::RunInFreshThread;
using Opinion = DayStory::Opinion;
using State = DayStory::State;

constexpr std::int32_t kExceptionRule = 1;
constexpr std::int32_t kSaturday = 2;
constexpr std::int32_t kNewYear = 4;
constexpr std::int32_t kGoodFriday = 5;
constexpr std::int32_t kFair = 6;

DayStory StoryOf(EuroWorld&, const Date& day, const almanac::DateTables& tables = {}) {
  return CalendarStory(EuroWorld::kEuro, day.Year(), tables).Of(day);
}

TEST(DayStory, TellsRuleExpressionPlanAndSourceOfAHoliday) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.Give(Date(2028, 4, 14), kGoodFriday, "All day");
    const DayStory story = StoryOf(world, Date(2028, 4, 14));
    EXPECT_EQ(story.day, Date(2028, 4, 14));
    EXPECT_EQ(story.state, State::kClosed);
    EXPECT_EQ(story.rule, "Good Friday");
    EXPECT_EQ(story.comment, "All day");
    EXPECT_EQ(story.expression, "easter-2");
    EXPECT_EQ(story.opinion_kind, Opinion::kAsPlanned);
    EXPECT_EQ(story.opinion, "as planned: Easter Sunday 16 April 2028, two days before");
    EXPECT_EQ(story.source, "ECB: Closing days");
  });
}

TEST(DayStory, TellsThatAnOrdinaryDayIsAsPlanned) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    const DayStory story = StoryOf(world, Date(2028, 4, 12));
    EXPECT_EQ(story.state, State::kOrdinary);
    EXPECT_EQ(story.rule, "");
    EXPECT_EQ(story.expression, "");
    EXPECT_EQ(story.opinion_kind, Opinion::kAsPlanned);
    EXPECT_EQ(story.opinion, "as planned: An ordinary working day");
  });
}

TEST(DayStory, TellsWhatAnOrdinaryDayShouldBe) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    const DayStory story = StoryOf(world, Date(2028, 4, 14));
    EXPECT_EQ(story.state, State::kOrdinary);
    EXPECT_EQ(story.opinion_kind, Opinion::kOtherwise);
    EXPECT_EQ(story.opinion, "should be Good Friday: Easter Sunday 16 April 2028, two days before");
    EXPECT_EQ(story.expression, "easter-2");
  });
}

TEST(DayStory, TellsThatADayOfNoPlannedRuleShouldBeOrdinary) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.Give(Date(2028, 6, 1), kFair);
    const DayStory story = StoryOf(world, Date(2028, 6, 1));
    EXPECT_EQ(story.rule, "Street fair");
    EXPECT_EQ(story.expression, "");
    EXPECT_EQ(story.opinion_kind, Opinion::kOtherwise);
    EXPECT_EQ(story.opinion, "should be an ordinary working day");
  });
}

TEST(DayStory, TellsTheExpressionOfTheRuleThatADayHasAndNotOfTheOneThatItShouldHave) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.Give(Date(2028, 4, 14), kNewYear);
    const DayStory story = StoryOf(world, Date(2028, 4, 14));
    EXPECT_EQ(story.expression, "01-01");
    EXPECT_THAT(story.opinion, HasSubstr("should be Good Friday"));
    world.Give(Date(2028, 4, 14), kFair);
    EXPECT_EQ(StoryOf(world, Date(2028, 4, 14)).expression, "");
  });
}

TEST(DayStory, TellsTheReasonOfAnException) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.Give(Date(2028, 4, 14), kExceptionRule, "Settlement works");
    const DayStory story = StoryOf(world, Date(2028, 4, 14));
    EXPECT_EQ(story.state, State::kException);
    EXPECT_EQ(story.rule, "Working day by exception");
    EXPECT_EQ(story.comment, "Settlement works");
    EXPECT_EQ(story.opinion_kind, Opinion::kOtherwise);
  });
}

TEST(DayStory, SaysWhyThereIsNoPlan) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.AddYear(2600);
    EXPECT_THAT(StoryOf(world, Date(2600, 1, 1)).opinion, HasSubstr("2199"));
    world.Tables().books.at(978).rules[3].expression = "12-32";
    EXPECT_THAT(StoryOf(world, Date(2028, 4, 14)).opinion, HasSubstr("The book of EUR cannot be used"));
    world.Tables().books.clear();
    const DayStory story = StoryOf(world, Date(2028, 4, 14));
    EXPECT_EQ(story.opinion_kind, Opinion::kNone);
    EXPECT_THAT(story.opinion, HasSubstr("EUR has no book"));
    EXPECT_EQ(story.source, "");
  });
}

TEST(DayStory, SaysThatThePlanLacksTheDatesOfARule) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.Tables().books.at(978).rules.push_back({"Street fair", 4, "table fairs", {}, {}});
    world.Give(Date(2028, 6, 1), kFair);
    almanac::DateTables tables;
    tables.Add({"fairs", 2020, 2026, {Date(2026, 6, 3)}});
    const DayStory story = StoryOf(world, Date(2028, 6, 1), tables);
    EXPECT_EQ(story.opinion_kind, Opinion::kUnknown);
    EXPECT_THAT(story.opinion, HasSubstr("the table fairs does not reach"));
    EXPECT_EQ(story.expression, "table fairs");
  });
}

TEST(DayStory, OfACalendarWhoseCurrencyIsUnknownNamesItsNumber) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.Tables().calendars[{777, 2028}] = world.Tables().calendars.at({978, 2028});
    EXPECT_THAT(CalendarStory(777, 2028, {}).Of(Date(2028, 4, 14)).opinion, HasSubstr("777 has no book"));
  });
}

TEST(DayStory, IsRightOrSaysThatItIsNotKnownAtAnyFailingCall) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    int call = 1;
    int told = 0;
    for (bool has_fired = true; has_fired && call < 1000; ++call) {
      world.world.faults.FailAtCall(call);
      try {
        const DayStory story = StoryOf(world, Date(2028, 4, 14));
        if (story.opinion_kind == Opinion::kNone) {
          ++told;
        } else {
          EXPECT_THAT(story.opinion, HasSubstr("should be Good Friday")) << world.world.faults.FailedCall();
        }
      } catch (const platform::Failure&) {
        ++told;
      }
      has_fired = world.world.faults.HasFired();
    }
    EXPECT_GT(told, 20);
  });
}

TEST(DayStory, TellsWhoChangedTheDayLast) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    const CalendarStory story(EuroWorld::kEuro, 2028, {});
    EXPECT_EQ(story.LoadLastChange(Date(2028, 4, 14)), "");
    world.world.database->SetUser("anna");
    world.Call("CldIUMain", {978, 2028, 4, 5, 105, Date(2028, 4, 14), {}});
    world.world.database->SetUser("otto");
    world.Call("CldIUMain", {978, 2028, 4, 6, 106, Date(2028, 4, 15), {}});
    EXPECT_THAT(story.LoadLastChange(Date(2028, 4, 14)),
                MatchesRegex("anna, ....-..-.. ... ..:..: Assigned Good Friday to Friday 14 April 2028"));
  });
}

TEST(SameDay, TellsTheDateAndTheDaysOfTheRuleInTheYearsAround) {
  RunInFreshThread([] {
    EuroWorld world;
    for (const int year : {2026, 2027, 2028, 2029}) world.AddYear(year);
    world.Give(Date(2026, 4, 3), kGoodFriday);
    world.Give(Date(2027, 3, 26), kGoodFriday);
    world.Give(Date(2028, 4, 14), kGoodFriday);
    world.Give(Date(2029, 3, 30), kGoodFriday);
    world.Give(Date(2029, 4, 2), kGoodFriday);
    const CalendarStory story(EuroWorld::kEuro, 2028, {});
    const auto around = story.Around(Date(2028, 4, 14));
    ASSERT_EQ(around.size(), 4u);
    EXPECT_EQ(around[0].day, Date(2026, 4, 14));
    EXPECT_TRUE(around[0].is_prepared);
    EXPECT_EQ(around[0].rule, "");
    EXPECT_THAT(around[0].days_of_rule, ElementsAre(Date(2026, 4, 3)));
    EXPECT_EQ(around[2].year, 2029);
    EXPECT_EQ(around[2].rule, "Saturday");
    EXPECT_THAT(around[2].days_of_rule, ElementsAre(Date(2029, 3, 30), Date(2029, 4, 2)));
    EXPECT_FALSE(around[3].is_prepared);
    EXPECT_TRUE(around[3].days_of_rule.empty());
  });
}

TEST(SameDay, OfAWeekendOrAnExceptionTellsNoDaysOfItsRule) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2027);
    world.AddYear(2028);
    world.Give(Date(2028, 4, 14), kExceptionRule);
    world.Give(Date(2027, 5, 3), kExceptionRule);
    const CalendarStory story(EuroWorld::kEuro, 2028, {});
    for (const Date& day : {Date(2028, 4, 14), Date(2028, 4, 15), Date(2028, 4, 13)}) {
      EXPECT_TRUE(story.Around(day)[1].days_of_rule.empty());
    }
    EXPECT_EQ(world.Tables().calendars.at({978, 2028})[105].rule, kSaturday);
  });
}

TEST(SameDay, OfALeapDayIsTheDayBeforeTheFirstOfMarch) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    EXPECT_EQ(CalendarStory(EuroWorld::kEuro, 2028, {}).Around(Date(2028, 2, 29))[0].day, Date(2026, 2, 28));
  });
}

TEST(SameDay, StaysWithinTheYearsThatCalendarsCanHave) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(1900);
    world.AddYear(3000);
    EXPECT_EQ(CalendarStory(EuroWorld::kEuro, 1900, {}).Around(Date(1900, 5, 5)).size(), 2u);
    EXPECT_EQ(CalendarStory(EuroWorld::kEuro, 3000, {}).Around(Date(3000, 5, 5)).size(), 2u);
  });
}

}  // namespace
}  // namespace ferrowind::planning
