#include "ferrowind/exchange/year_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/exchange/lists.h"

namespace ferrowind::exchange {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(YearList, IsSortedByDay) {
  const SortedList sorted = SortByYear({{Day(2027, 12, 25, "b"), Day(2027, 1, 1, "a")}}, "EUR", std::nullopt);
  ASSERT_EQ(sorted.years.size(), 1U);
  EXPECT_EQ(sorted.years[0].year, 2027);
  EXPECT_THAT(sorted.years[0].days, ElementsAre(Day(2027, 1, 1, "a"), Day(2027, 12, 25, "b")));
  EXPECT_THAT(sorted.remarks, IsEmpty());
  EXPECT_NE(sorted.years[0].Find({2027, 1, 1}), nullptr);
  EXPECT_EQ(sorted.years[0].Find({2027, 1, 2}), nullptr);
}

TEST(YearList, OfSeveralYearsNeedsToBeToldWhichAreWhole) {
  const DayList list{{Day(2027, 1, 1), Day(2027, 12, 25), Day(2028, 1, 1)}};
  EXPECT_EQ(RefusalOf([&] { return SortByYear(list, "EUR", std::nullopt); }),
            "The list has days of several years: 2027, 2028; say with --year which of them are whole");
  const SortedList one = SortByYear(list, "EUR", WantedYears{2027, 2027});
  EXPECT_EQ(one.years.size(), 1U);
  EXPECT_THAT(one.remarks, ElementsAre("1 day of other years is left out: 2028"));
  EXPECT_EQ(SortByYear(list, "EUR", WantedYears{2027, 2028}).years.size(), 2U);
  EXPECT_EQ(RefusalOf([&] {
              return SortByYear(list, "EUR", WantedYears{2027, 2029});
            }),
            "The list has no day of EUR 2029");
  EXPECT_EQ(RefusalOf([&] { return SortByYear({}, "EUR", std::nullopt); }), "The list has no day of EUR");
}

TEST(YearList, LeavesOtherCurrenciesOut) {
  DayList list{{Day(2027, 1, 1), Day(2027, 7, 4), Day(2027, 12, 25)}};
  list.days[0].currency = "eur";
  list.days[1].currency = "USD";
  const SortedList sorted = SortByYear(list, "EUR", std::nullopt);
  EXPECT_EQ(sorted.years[0].days.size(), 2U);
  EXPECT_THAT(sorted.remarks, ElementsAre("1 day of other currencies is left out: USD"));
}

TEST(YearList, TakesADayOnce) {
  DayList list{{Day(2027, 5, 17, "Whit Monday"), Day(2027, 5, 17, "National Day"), Day(2027, 5, 17)}};
  for (std::size_t i = 0; i < list.days.size(); ++i) list.days[i].line = i + 1;
  const SortedList sorted = SortByYear(list, "EUR", std::nullopt);
  ASSERT_EQ(sorted.years[0].days.size(), 1U);
  EXPECT_EQ(sorted.years[0].days[0].name, "Whit Monday");
  EXPECT_THAT(
      sorted.remarks,
      ElementsAre("Line 2: 2027-05-17 stands in line 1 already; the name \"National Day\" is left out",
                  "Line 3: 2027-05-17 stands in line 1 already"));
}

TEST(YearList, RefusesADayThatIsOpenAndClosed) {
  DayList list{{Day(2027, 12, 24, "a"), Day(2027, 12, 24, "a", ListedKind::kHalfDay)}};
  list.days[0].line = 4;
  list.days[1].line = 5;
  EXPECT_EQ(RefusalOf([&] { return SortByYear(list, "EUR", std::nullopt); }),
            "line 5: 2027-12-24 stands in line 4 already, as a holiday, and here as a half day");
}

TEST(YearList, ListsAWeekdayWhenItNamesMostOfItsDays) {
  const YearList all{2027, DaysOfWeek(2027, 7)};
  EXPECT_TRUE(all.ListsWeekday(7));
  EXPECT_FALSE(all.ListsWeekday(1));
  YearList few = all;
  few.days.erase(few.days.begin() + (YearList::kEnough - 1), few.days.end());
  EXPECT_FALSE(few.ListsWeekday(7));
}

}  // namespace
}  // namespace ferrowind::exchange
