#include "ferrowind/adapters/year_engine/year_cursor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/adapters/year_engine/small_years.h"

namespace ferrowind::year_engine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The day of the year of a date.
int On(int year, int month, int day) { return platform::Date(year, month, day).DayOfYear(); }

class YearCursorTest : public testing::Test {
 protected:
  void Show(YearDays days) {
    cursor.Enter(shown, days);
    shown = std::move(days);
  }
  void Step(YearStep step) { cursor.GoTo(cursor.After(step)); }

  YearDays shown;
  YearCursor cursor;
};

TEST_F(YearCursorTest, HasNoCurrentDayWithoutACalendar) {
  Show(DaysOf(2028, {}));
  EXPECT_EQ(cursor.Current(), std::nullopt);
  EXPECT_THAT(cursor.Selected(), IsEmpty());
}

TEST_F(YearCursorTest, StartsOnTodayElseOnTheFirstOfJanuary) {
  Show(DaysOf(2028, {"EUR"}));
  EXPECT_EQ(cursor.Current(), (YearPlace{0, 1}));
  cursor = {};
  auto content = ContentOf(2028, {"EUR"});
  content.today = 100;
  Show(YearDays(content));
  EXPECT_EQ(cursor.Current(), (YearPlace{0, 100}));
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 100}));
}

TEST_F(YearCursorTest, KeepsTheDateInAnotherYear) {
  Show(DaysOf(2028, {"EUR"}));
  cursor.GoTo({0, On(2028, 2, 29)});
  cursor.ExtendTo({0, On(2028, 3, 4)});
  Show(DaysOf(2029, {"EUR"}));
  EXPECT_EQ(cursor.Current(), (YearPlace{0, On(2029, 3, 4)}));
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, On(2029, 3, 4)}));
  cursor.GoTo({0, On(2029, 2, 28)});
  Show(DaysOf(2028, {"EUR"}));
  EXPECT_EQ(cursor.Current(), (YearPlace{0, On(2028, 2, 28)}));
}

TEST_F(YearCursorTest, KeepsCurrentAndSelectedDaysOfCalendarsThatStay) {
  Show(DaysOf(2028, {"EUR", "USD"}));
  cursor.GoTo({0, 10});
  cursor.Toggle({1, 20});
  cursor.Toggle({1, 30});
  Show(DaysOf(2028, {"JPY", "USD"}));
  EXPECT_EQ(cursor.Current(), (YearPlace{1, 30}));
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{1, 20}, YearPlace{1, 30}));
}

TEST_F(YearCursorTest, KeepsADayOutOfTheSelectionWhereItIsCurrent) {
  Show(DaysOf(2028, {"EUR"}));
  cursor.GoTo({0, 10});
  cursor.Toggle({0, 20});
  cursor.Toggle({0, 20});
  Show(DaysOf(2028, {"EUR"}));
  EXPECT_EQ(cursor.Current(), (YearPlace{0, 20}));
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 10}));
}

TEST_F(YearCursorTest, StaysOnTheDayWhenItsCalendarIsGone) {
  Show(DaysOf(2028, {"EUR", "USD"}));
  cursor.GoTo({1, 30});
  Show(DaysOf(2028, {"JPY"}));
  EXPECT_EQ(cursor.Current(), (YearPlace{0, 30}));
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 30}));
}

TEST_F(YearCursorTest, SelectsAllDaysOfARangeOfOneCalendar) {
  Show(DaysOf(2028, {"EUR"}));
  cursor.GoTo({0, 12});
  cursor.ExtendTo({0, 10});
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 10}, YearPlace{0, 11}, YearPlace{0, 12}));
  EXPECT_EQ(cursor.Current(), (YearPlace{0, 10}));
  cursor.ExtendTo({0, 13});
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 12}, YearPlace{0, 13}));
}

TEST_F(YearCursorTest, SelectsTheDaysOfAllCalendarsBetweenTheEnds) {
  Show(DaysOf(2028, {"EUR", "USD", "JPY"}));
  cursor.GoTo({2, 10});
  cursor.ExtendTo({1, 11});
  EXPECT_THAT(cursor.Selected(),
              ElementsAre(YearPlace{1, 10}, YearPlace{1, 11}, YearPlace{2, 10}, YearPlace{2, 11}));
}

TEST_F(YearCursorTest, AddsRangesAndSingleDays) {
  Show(DaysOf(2028, {"EUR"}));
  cursor.GoTo({0, 10});
  cursor.Toggle({0, 20});
  cursor.ExtendTo({0, 21}, true);
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 10}, YearPlace{0, 20}, YearPlace{0, 21}));
  cursor.Toggle({0, 20});
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 10}, YearPlace{0, 21}));
}

TEST_F(YearCursorTest, PointsIntoASelectionWithoutChangingIt) {
  Show(DaysOf(2028, {"EUR"}));
  cursor.GoTo({0, 10});
  cursor.ExtendTo({0, 12});
  cursor.PointAt({0, 11});
  EXPECT_EQ(cursor.Current(), (YearPlace{0, 11}));
  EXPECT_EQ(cursor.Selected().size(), 3U);
  cursor.PointAt({0, 20});
  EXPECT_THAT(cursor.Selected(), ElementsAre(YearPlace{0, 20}));
}

TEST_F(YearCursorTest, StepsByDaysWeeksAndMonths) {
  Show(DaysOf(2028, {"EUR"}));
  cursor.GoTo({0, On(2028, 1, 31)});
  Step(YearStep::kDayAfter);
  EXPECT_EQ(cursor.Current()->day, On(2028, 2, 1));
  Step(YearStep::kDown);
  EXPECT_EQ(cursor.Current()->day, On(2028, 2, 8));
  Step(YearStep::kMonthEnd);
  EXPECT_EQ(cursor.Current()->day, On(2028, 2, 29));
  Step(YearStep::kMonthStart);
  EXPECT_EQ(cursor.Current()->day, On(2028, 2, 1));
  Step(YearStep::kDayBefore);
  EXPECT_EQ(cursor.Current()->day, On(2028, 1, 31));
  Step(YearStep::kMonthAfter);
  EXPECT_EQ(cursor.Current()->day, On(2028, 2, 29));
  Step(YearStep::kMonthBefore);
  EXPECT_EQ(cursor.Current()->day, On(2028, 1, 29));
  Step(YearStep::kUp);
  EXPECT_EQ(cursor.Current()->day, On(2028, 1, 22));
  Step(YearStep::kYearEnd);
  EXPECT_EQ(cursor.Current()->day, 366);
  Step(YearStep::kYearStart);
  EXPECT_EQ(cursor.Current()->day, 1);
}

TEST_F(YearCursorTest, StaysAtTheEdgesOfTheYear) {
  Show(DaysOf(2027, {"EUR"}));
  for (const YearStep step : {YearStep::kDayBefore, YearStep::kUp, YearStep::kMonthBefore}) {
    cursor.GoTo({0, 5});
    if (step == YearStep::kDayBefore) cursor.GoTo({0, 1});
    const auto before = cursor.Current();
    EXPECT_EQ(cursor.After(step), before);
  }
  for (const YearStep step : {YearStep::kDayAfter, YearStep::kDown, YearStep::kMonthAfter}) {
    cursor.GoTo({0, 361});
    if (step == YearStep::kDayAfter) cursor.GoTo({0, 365});
    const auto before = cursor.Current();
    EXPECT_EQ(cursor.After(step), before);
  }
}

TEST_F(YearCursorTest, GoesUpAndDownBetweenSeveralCalendars) {
  Show(DaysOf(2028, {"EUR", "USD"}));
  cursor.GoTo({0, 50});
  EXPECT_EQ(cursor.After(YearStep::kDown), (YearPlace{1, 50}));
  EXPECT_EQ(cursor.After(YearStep::kUp), (YearPlace{0, 50}));
}

TEST_F(YearCursorTest, TellsItsSelectionFromAnother) {
  Show(DaysOf(2028, {"EUR"}));
  const YearCursor before = cursor;
  cursor.PointAt(*cursor.Current());
  EXPECT_TRUE(cursor.HasSelectionOf(before));
  cursor.ExtendTo({0, 2});
  EXPECT_FALSE(cursor.HasSelectionOf(before));
}

}  // namespace
}  // namespace ferrowind::year_engine
