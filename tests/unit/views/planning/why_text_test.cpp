// Why a day is what it is, in lines.
#include "ferrowind/views/planning/why_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/world.h"

namespace ferrowind {
namespace {

using planning::DayStory;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

struct World {
  headless::World world;
  platform::Platform platform = world.Platform();
};

DayStory Exception() {
  DayStory story{.day = Date(2028, 4, 14)};
  story.state = DayStory::State::kException;
  story.rule = "Working day by exception";
  story.opinion = "EUR has no book";
  return story;
}

TEST(WhyText, TellsTheReasonOfAnException) {
  DayStory story = Exception();
  story.comment = "Settlement works";
  EXPECT_EQ(WhyText(World().platform, "EUR", story, ""),
            "EUR, Friday 14 April 2028: Working day by exception\n"
            "Reason: Settlement works\n"
            "Plan: EUR has no book");
}

TEST(WhyText, SaysThatAnExceptionHasNoReason) {
  EXPECT_THAT(WhyText(World().platform, "EUR", Exception(), ""),
              HasSubstr("\nNo reason is given for the exception.\n"));
}

TEST(WhyText, TellsTheTextOfAHolidayAndNothingWhereItHasNone) {
  DayStory story = Exception();
  story.state = DayStory::State::kClosed;
  story.rule = "Street fair";
  EXPECT_THAT(WhyText(World().platform, "EUR", story, ""), Not(HasSubstr("eason")));
  story.comment = "Half day";
  EXPECT_THAT(WhyText(World().platform, "EUR", story, ""), HasSubstr("\nText: Half day\n"));
}

TEST(WhyText, TellsWhoChangedTheDay) {
  EXPECT_THAT(WhyText(World().platform, "EUR", Exception(), "by anna"), HasSubstr("\nChanged: by anna"));
}

TEST(YearRows, TellTheWeekdayAndTheRuleOfTheDateAndEachDayOfTheRule) {
  DayStory story = Exception();
  story.has_dated_rule = true;
  const auto rows = YearRows(World().platform, story,
                             {{2027, true, Date(2027, 4, 14), "", {Date(2027, 3, 26), Date(2027, 5, 3)}},
                              {2029, true, Date(2029, 4, 14), "Saturday", {}}});
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].key, "2027");
  EXPECT_EQ(rows[0].cells[1].text, "Wednesday, working day");
  EXPECT_EQ(rows[0].cells[1].description, "Wednesday 14 April 2027: working day");
  EXPECT_EQ(rows[0].cells[2].text, "Friday 26 March 2027, Monday 3 May 2027");
  EXPECT_EQ(rows[1].cells[1].text, "Saturday");
  EXPECT_EQ(rows[1].cells[2].text, "no day");
}

}  // namespace
}  // namespace ferrowind
