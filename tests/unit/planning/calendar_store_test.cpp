#include "ferrowind/planning/calendar_store.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::MarkedDay;
using almanac::RuleKind;
using platform::Date;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;

Currency Euro() { return {978, "EUR", "Euro", true, {}}; }

TEST(CalendarStore, ReadsTheDaysThatHaveARule) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCalendar("f1", {{Date(2028, 1, 1), 1, {}, {}, {}, {}, 1},
                                    {Date(2028, 1, 2), 2, "Sunday", "Weekend", {}, 2, 2},
                                    {Date(2028, 1, 3), 1, "Working day by exception", {}, "Fair", 1, 3}});
    const StoredCalendar calendar = LoadCalendar(Euro(), 2028);
    EXPECT_TRUE(calendar.exists);
    EXPECT_EQ(calendar.fingerprint, "f1");
    EXPECT_EQ(calendar.content.year, 2028);
    ASSERT_THAT(calendar.content.days, SizeIs(2));
    const MarkedDay& sunday = calendar.content.days[0];
    EXPECT_EQ(sunday.day_of_year, 2);
    EXPECT_EQ(sunday.kind, RuleKind::kWeekday);
    EXPECT_EQ(sunday.rule, 2);
    EXPECT_EQ(sunday.comment, "");
    EXPECT_TRUE(sunday.IsClosed());
    EXPECT_EQ(calendar.content.days[1].comment, "Fair");
    EXPECT_FALSE(calendar.content.days[1].IsClosed());
  });
}

TEST(CalendarStore, ReadsTheFingerprintBeforeTheDaysSoThatAChangeBetweenThemIsRefused) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCalendar("f1", {});
    (void)LoadCalendar(Euro(), 2028);
    const auto& calls = component.world.commands.Calls();
    ASSERT_THAT(calls, SizeIs(2));
    EXPECT_EQ(calls[0].procedure, "CldGetFingerprint");
    EXPECT_EQ(calls[1].procedure, "CldGetMain");
    EXPECT_EQ(calls[1].Parameter("@ID1"), Value(978));
    EXPECT_EQ(calls[1].Parameter("@Year1"), Value(2028));
  });
}

TEST(CalendarStore, TakesACalendarThatDoesNotExistForAnEmptyOne) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCalendar("", {}).Returns(5);
    const StoredCalendar calendar = LoadCalendar(Euro(), 2028);
    EXPECT_FALSE(calendar.exists);
    EXPECT_EQ(calendar.fingerprint, "");
    EXPECT_EQ(calendar.content.year, 2028);
    EXPECT_THAT(calendar.content.days, IsEmpty());
  });
}

TEST(CalendarStore, NamesTheCalendarThatCannotBeRead) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCalendar("", {}).Returns(3);
    EXPECT_THAT(testing::FailureOf([] { (void)LoadCalendar(Euro(), 2028); }).Description(),
                HasSubstr("Reading the calendar EUR 2028: the currency is unknown"));
  });
}

TEST(CalendarStore, ReadsTheRulesAndWhichCalendarsThereAre) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerRules({{840, 2026}, {978, 2027}});
    const StoredRules stored = LoadRules();
    EXPECT_EQ(stored.calendars, (std::vector<CalendarKey>{{840, 2026}, {978, 2027}}));
    ASSERT_THAT(stored.rules, SizeIs(4));
    EXPECT_EQ(stored.rules[1].name, "Sunday");
    EXPECT_EQ(stored.rules[1].kind, RuleKind::kWeekday);
    EXPECT_EQ(stored.rules[2].month, 12);
    EXPECT_EQ(stored.rules[2].day, 25);
    EXPECT_FALSE(stored.rules[2].is_removed) << "it was removed and restored";
    EXPECT_EQ(stored.rules[3].month, 0) << "a holiday point has no fixed date";
    EXPECT_TRUE(stored.rules[3].is_removed);
  });
}

TEST(CalendarStore, ReadsTheMarkedDaysOfAllCalendarsInOneCall) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("CldGetMarkedDays")
        .Takes("@FromYear", ParameterType::kInt32)
        .Takes("@ToYear", ParameterType::kInt32)
        .Gives({"ID1", "Year1", "Day1", "TID1", "ID2", "Comment"},
               {{840, 2026, std::int16_t{4}, 2, 2, {}},
                {840, 2027, std::int16_t{3}, 2, 2, {}},
                {978, 2027, std::int16_t{3}, 2, 2, {}},
                {978, 2027, std::int16_t{359}, 3, 3, "Settled"}});
    const auto contents = LoadMarkedDays(2026, 2030);
    ASSERT_THAT(contents, SizeIs(3));
    EXPECT_EQ(contents[0].first, CalendarKey(840, 2026));
    EXPECT_EQ(contents[2].first, CalendarKey(978, 2027));
    EXPECT_EQ(contents[2].second.year, 2027);
    ASSERT_THAT(contents[2].second.days, SizeIs(2));
    EXPECT_EQ(contents[2].second.days[1].day_of_year, 359);
    EXPECT_EQ(contents[2].second.days[1].comment, "Settled");
    const auto call = component.world.commands.CallsOf("CldGetMarkedDays").front();
    EXPECT_EQ(call.Parameter("@FromYear"), Value(2026));
    EXPECT_EQ(call.Parameter("@ToYear"), Value(2030));
  });
}

}  // namespace
}  // namespace ferrowind::planning
