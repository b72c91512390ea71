// What assigning rules would do to a calendar.
#include "ferrowind/planning/assignment_preview.h"

#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/euro_world.h"

namespace ferrowind::planning {
namespace {

using almanac::RuleKind;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

constexpr std::int32_t kExceptionRule = 1;
constexpr std::int32_t kNewYearRule = 4;
constexpr std::int32_t kGoodFridayRule = 5;
constexpr std::int32_t kFairRule = 6;

const RuleToAssign kSaturday{2, RuleKind::kWeekday, "Saturday", {}, 7};
const RuleToAssign kWednesday{9, RuleKind::kWeekday, "Wednesday", {}, 4};
const RuleToAssign kNewYear{kNewYearRule, RuleKind::kCelebration, "New Year's Day", Date(2026, 1, 1), 0};
const RuleToAssign kFair{kFairRule, RuleKind::kPoint, "Street fair", Date(2028, 7, 3), 0};

RuleToAssign GoodFriday(const Date& date) {
  return {kGoodFridayRule, RuleKind::kPoint, "Good Friday", date, 0};
}

/// The preview for EUR 2028 without its weekends, so that days are few.
std::vector<AssignmentLine> LinesFor(EuroWorld& world, const std::vector<RuleToAssign>& rules,
                                     const std::optional<Date>& day = {}) {
  world.Tables().calendars[{EuroWorld::kEuro, 2028}].resize(366);
  return PreviewAssignment(CalendarRules(EuroWorld::kEuro, 2028, {}), rules, day);
}

void OnAPreview(const std::function<void(EuroWorld& world)>& body) {
  RunInFreshThread([&] {
    EuroWorld world;
    world.AddYear(2028);
    body(world);
  });
}

TEST(AssignmentPreview, TellsTheDayOfThisYearAndWhatStandsThere) {
  OnAPreview([](EuroWorld& world) {
    const auto lines = LinesFor(world, {GoodFriday(Date(2028, 4, 14))});
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].rule, "Good Friday");
    EXPECT_EQ(lines[0].day, Date(2028, 4, 14));
    EXPECT_EQ(lines[0].now, "working day");
    EXPECT_TRUE(lines[0].changes);
    EXPECT_THAT(lines[0].warnings, IsEmpty());
  });
}

TEST(AssignmentPreview, MovesACelebrationIntoTheYearWithoutAWarning) {
  OnAPreview([](EuroWorld& world) {
    world.Tables().books.at(978).rules.erase(world.Tables().books.at(978).rules.begin());
    world.Give(Date(2028, 1, 1), kNewYearRule, "Half day");
    const auto lines = LinesFor(world, {kNewYear});
    EXPECT_EQ(lines[0].day, Date(2028, 1, 1));
    EXPECT_EQ(lines[0].now, "New Year's Day: Half day");
    EXPECT_FALSE(lines[0].changes);
    EXPECT_THAT(lines[0].warnings, IsEmpty());
  });
}

TEST(AssignmentPreview, WarnsOfAPointOfAnotherYearAndTellsWhereTheBookHasIt) {
  OnAPreview([](EuroWorld& world) {
    const auto lines = LinesFor(world, {GoodFriday(Date(2026, 4, 3))});
    EXPECT_EQ(lines[0].day, Date(2028, 4, 3));
    EXPECT_THAT(lines[0].warnings, ElementsAre("It is dated for 2026, on Friday 3 April 2026",
                                               "The book of EUR has it on Friday 14 April 2028"));
  });
}

TEST(AssignmentPreview, WarnsOfNoPointOfAnotherYearWhoseDateIsThePlansToo) {
  OnAPreview([](EuroWorld& world) {
    EXPECT_THAT(LinesFor(world, {GoodFriday(Date(2017, 4, 14))})[0].warnings, IsEmpty());
  });
}

TEST(AssignmentPreview, WarnsOfAPointOfAnotherYearThatNoBookKnows) {
  OnAPreview([](EuroWorld& world) {
    RuleToAssign fair = kFair;
    fair.date = Date(2025, 7, 3);
    EXPECT_THAT(LinesFor(world, {fair})[0].warnings,
                ElementsAre("It is dated for 2025, on Thursday 3 July 2025"));
  });
}

TEST(AssignmentPreview, WarnsOfAWeekendByTheCalendarItsBookOrAsIsUsual) {
  const auto warns_on_saturday = [](const std::function<void(EuroWorld & world)>& prepare, bool expected) {
    RunInFreshThread([&] {
      EuroWorld world;
      world.Tables().calendars[{978, 2028}].resize(366);
      prepare(world);
      RuleToAssign fair = kFair;
      fair.date = Date(2028, 7, 1);
      const auto warnings = LinesFor(world, {fair})[0].warnings;
      EXPECT_EQ(warnings,
                expected ? std::vector<std::string>{"It falls on a Saturday"} : std::vector<std::string>{});
    });
  };
  warns_on_saturday([](EuroWorld&) {}, true);
  warns_on_saturday([](EuroWorld& world) { world.Tables().books.clear(); }, true);
  warns_on_saturday(
      [](EuroWorld& world) {
        auto& rules = world.Tables().books.at(978).rules;
        rules.erase(rules.begin());
      },
      false);
  warns_on_saturday(
      [](EuroWorld& world) {
        auto& rules = world.Tables().books.at(978).rules;
        rules.erase(rules.begin());
        world.Give(Date(2028, 7, 1), 2);
      },
      true);
}

TEST(AssignmentPreview, WarnsOfARuleThatStandsElsewhereInTheYear) {
  OnAPreview([](EuroWorld& world) {
    world.Give(Date(2028, 7, 4), kFairRule);
    EXPECT_THAT(LinesFor(world, {kFair})[0].warnings,
                ElementsAre("It stands on Tuesday 4 July 2028 already"));
    for (int day = 5; day <= 8; ++day) world.Give(Date(2028, 9, day), kFairRule);
    EXPECT_THAT(LinesFor(world, {kFair})[0].warnings,
                ElementsAre("It stands on Tuesday 4 July 2028, Tuesday 5 September 2028, Wednesday 6 "
                            "September 2028, Thursday 7 September 2028 and 1 more already"));
  });
}

TEST(AssignmentPreview, WarnsOfAnExceptionThatWouldBeClosed) {
  OnAPreview([](EuroWorld& world) {
    world.Give(Date(2028, 7, 3), kExceptionRule, "Settlement works");
    const auto lines = LinesFor(world, {kFair});
    EXPECT_EQ(lines[0].now, "Working day by exception: Settlement works");
    EXPECT_THAT(lines[0].warnings, ElementsAre("The day is a working day by exception, and would be closed"));
  });
}

TEST(AssignmentPreview, WarnsOfARuleOfAnotherCurrencysBook) {
  OnAPreview([](EuroWorld& world) {
    const headless::MemoryRecurrence fair{"Street fair", 4, "07-03", {}, {}};
    world.AddBook(840, fair);
    EXPECT_THAT(LinesFor(world, {kFair})[0].warnings,
                ElementsAre("It belongs to the book of USD, not to that of EUR"));
    world.AddBook(826, fair);
    EXPECT_THAT(LinesFor(world, {kFair})[0].warnings,
                ElementsAre("It belongs to the books of GBP and USD, not to that of EUR"));
    world.Tables().books.at(978).rules.push_back(fair);
    EXPECT_THAT(LinesFor(world, {kFair})[0].warnings, IsEmpty());
  });
}

TEST(AssignmentPreview, CountsTheDaysOfAWeekdayRule) {
  RunInFreshThread([] {
    EuroWorld world;
    world.Tables().calendars[{978, 2028}].resize(366);
    world.Give(Date(2028, 1, 1), kNewYearRule);
    world.Give(Date(2028, 1, 8), kExceptionRule);
    world.Give(Date(2028, 1, 15), kSaturday.id);
    const auto lines = LinesFor(world, {kSaturday});
    EXPECT_EQ(lines[0].day, std::nullopt);
    EXPECT_EQ(lines[0].days, "every Saturday");
    EXPECT_EQ(lines[0].now, "50 days take it, 1 has it and 2 stay as holidays or exceptions");
    EXPECT_TRUE(lines[0].changes);
    EXPECT_THAT(lines[0].warnings, IsEmpty());
  });
}

TEST(AssignmentPreview, TellsThatAWeekdayRuleChangesNothingWhereAllDaysHaveIt) {
  OnAPreview([](EuroWorld& world) {
    const auto lines = LinesFor(world, {kSaturday});
    EXPECT_FALSE(lines[0].changes);
    EXPECT_EQ(lines[0].now, "0 days take it and 53 have it");
  });
}

TEST(AssignmentPreview, WarnsOfAWeekdayOnWhichTheBookIsOpen) {
  OnAPreview([](EuroWorld& world) {
    EXPECT_THAT(LinesFor(world, {kWednesday})[0].warnings,
                ElementsAre("The book of EUR does not close each Wednesday"));
    world.Tables().books.clear();
    EXPECT_THAT(LinesFor(world, {kWednesday})[0].warnings, IsEmpty());
  });
}

TEST(AssignmentPreview, GivesAWeekdayRuleToASingleDayAndADatedRuleToItsOwn) {
  OnAPreview([](EuroWorld& world) {
    const Date friday(2028, 4, 7);
    const auto lines = LinesFor(world, {kSaturday, GoodFriday(Date(2028, 4, 14))}, friday);
    EXPECT_EQ(lines[0].day, friday);
    EXPECT_THAT(lines[0].warnings, ElementsAre("Its weekday is Saturday, and the day is a Friday"));
    EXPECT_EQ(lines[1].day, Date(2028, 4, 14));
    EXPECT_THAT(lines[1].warnings, ElementsAre("It goes to its own date, not to Friday 7 April 2028"));
    EXPECT_THAT(LinesFor(world, {GoodFriday(Date(2028, 4, 14))}, Date(2028, 4, 14))[0].warnings, IsEmpty());
  });
}

TEST(AssignmentPreview, TellsOfARuleWithoutADateThatNothingIsAssigned) {
  OnAPreview([](EuroWorld& world) {
    RuleToAssign fair = kFair;
    fair.date.reset();
    const auto lines = LinesFor(world, {fair});
    EXPECT_FALSE(lines[0].changes);
    EXPECT_THAT(lines[0].warnings, ElementsAre("It has no date, so that nothing is assigned"));
  });
}

TEST(AssignmentPreview, SeesWhatTheRulesBeforeHaveLeft) {
  OnAPreview([](EuroWorld& world) {
    RuleToAssign second = kNewYear;
    second.date = Date(2026, 7, 3);
    const auto lines = LinesFor(world, {kFair, second, kFair});
    EXPECT_EQ(lines[1].now, "Street fair");
    EXPECT_EQ(lines[2].now, "New Year's Day");
  });
}

TEST(AssignmentPreview, PutsALeapDayOnTheTwentyEighthOfACommonYear) {
  RunInFreshThread([] {
    EuroWorld world;
    world.AddYear(2027);
    RuleToAssign fair = kFair;
    fair.date = Date(2024, 2, 29);
    const auto lines = PreviewAssignment(CalendarRules(978, 2027, {}), {fair}, {});
    EXPECT_EQ(lines[0].day, Date(2027, 2, 28));
  });
}

}  // namespace
}  // namespace ferrowind::planning
