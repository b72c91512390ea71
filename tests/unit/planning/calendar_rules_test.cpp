// The rules of a database as one calendar has them.
#include "ferrowind/planning/calendar_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/euro_world.h"

namespace ferrowind::planning {
namespace {

using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

constexpr std::int32_t kGoodFriday = 5;
constexpr std::int32_t kFair = 6;
constexpr std::int32_t kDollar = 840;

CalendarRules RulesOf(EuroWorld&, int year = 2028) { return {EuroWorld::kEuro, year, {}}; }

TEST(CalendarRules, KnowTheDaysOfARuleInTheCalendarAndInItsPlan) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2028);
    world.Give(Date(2028, 4, 3), kGoodFriday);
    world.Give(Date(2028, 5, 3), kGoodFriday);
    const CalendarRules rules = RulesOf(world);
    EXPECT_THAT(rules.DaysOf(kGoodFriday), ElementsAre(Date(2028, 4, 3), Date(2028, 5, 3)));
    EXPECT_THAT(rules.DaysOf(kFair), IsEmpty());
    EXPECT_THAT(rules.PlannedDaysOf("Good Friday"), ElementsAre(Date(2028, 4, 14)));
    EXPECT_THAT(rules.PlannedDaysOf("Street fair"), IsEmpty());
  });
}

TEST(CalendarRules, AreOfInterestByTheBookOfTheCurrency) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddBook(kDollar, {"Street fair", 4, "07-01", {}, {}});
    const CalendarRules rules = RulesOf(world);
    EXPECT_TRUE(rules.IsOfInterest(kGoodFriday));
    EXPECT_TRUE(rules.IsInBook(kGoodFriday));
    EXPECT_FALSE(rules.IsOfInterest(kFair));
    EXPECT_THAT(rules.OtherBooksOf(kFair), ElementsAre("USD"));
    EXPECT_THAT(rules.OtherBooksOf(kGoodFriday), IsEmpty());
  });
}

TEST(CalendarRules, AreOfInterestByTheCalendarsOfTheCurrencyThatAreNear) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddBook(kDollar, {"Street fair", 4, "07-01", {}, {}});
    world.AddYear(2026);
    world.Give(Date(2026, 7, 1), kFair);
    EXPECT_TRUE(RulesOf(world, 2028).IsOfInterest(kFair));
    EXPECT_TRUE(RulesOf(world, 2025).IsOfInterest(kFair));
    EXPECT_FALSE(RulesOf(world, 2029).IsOfInterest(kFair));
    EXPECT_FALSE(RulesOf(world, 2024).IsOfInterest(kFair));
  });
}

TEST(CalendarRules, ThatOnlyOthersCalendarsHaveAreOfNoInterest) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2027);
    world.Give(Date(2027, 7, 1), kFair);
    world.Tables().calendars[{kDollar, 2027}] = world.Tables().calendars.at({978, 2027});
    world.Tables().calendars.erase({978, 2027});
    EXPECT_FALSE(RulesOf(world).IsOfInterest(kFair));
  });
}

TEST(CalendarRules, ThatNobodyHasAreOfInterestToAll) {
  RunInFreshThread([] {
    EuroWorld world;
    EXPECT_TRUE(RulesOf(world).IsOfInterest(kFair));
    EXPECT_TRUE(RulesOf(world).IsOfInterest(999));
  });
}

TEST(CalendarRules, HaveTheNamesOfMovedDaysFromTheirBooks) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddBook(kDollar, {"Independence Day", 3, "07-04 Sunday to Monday", {}, "Street fair"});
    EXPECT_THAT(RulesOf(world).OtherBooksOf(kFair), ElementsAre("USD"));
  });
}

TEST(CalendarRules, HaveNoNameOfAMovedDayFromAHolidayThatNeverMoves) {
  RunInFreshThread([] {
    EuroWorld world;
    world.Tables().rules.at(kFair).name = "Boxing Day (observed)";
    world.AddBook(kDollar, {"Boxing Day", 3, "12-26", {}, {}});
    EXPECT_THAT(RulesOf(world).OtherBooksOf(kFair), IsEmpty());
  });
}

TEST(CalendarRules, OfAYearThatNobodyCanPlanHaveNoPlan) {
  RunInFreshThread([] {
    EuroWorld world;
    EXPECT_EQ(RulesOf(world, 2500).Plan(), nullptr);
    world.Tables().books.clear();
    EXPECT_EQ(RulesOf(world).Plan(), nullptr);
  });
}

}  // namespace
}  // namespace ferrowind::planning
