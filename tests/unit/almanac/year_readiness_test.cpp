#include "ferrowind/almanac/year_readiness.h"

#include <algorithm>
#include <optional>

#include <gmock/gmock.h>

#include "tests/support/says.h"
#include "tests/unit/almanac/small_calendars.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::Says;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kSmallBook =
    "weekday | Sunday | weekday Sunday | Weekend\n"
    "celebration | Christmas Day | 12-25 | 25 December\n";

constexpr ReviewHorizon kHorizon{2028, 2028};

/// The Sundays of 2028 that have not one of those days, and the days.
CalendarContent Sundays2028And(std::vector<MarkedDay> days) {
  for (Date day(2028, 1, 2); day.Year() == 2028; day = day.AddDays(7)) {
    const bool is_taken = std::any_of(days.begin(), days.end(), [&](const MarkedDay& marked) {
      return marked.day_of_year == day.DayOfYear();
    });
    if (!is_taken) days.push_back(Marked(day.ToIso().c_str(), rule::kSunday));
  }
  std::sort(days.begin(), days.end(), [](const MarkedDay& left, const MarkedDay& right) {
    return left.day_of_year < right.day_of_year;
  });
  return {2028, std::move(days)};
}

class YearReadinessTest : public ::testing::Test {
 protected:
  YearReadiness Of2028(std::optional<CalendarContent> calendar) {
    if (calendar) currency_.calendars = {*calendar};
    const RuleDirectory rules(SmallRules());
    return JudgeCurrency(currency_, rules, tables_, kHorizon, 2028, 2028).years.front();
  }
  void UseBook(const char* lines) { currency_.book = BookOf(lines); }

  ReviewedCurrency currency_ = {"EUR", BookOf(kSmallBook), {}, {}, {}};
  DateTables tables_;
};

TEST_F(YearReadinessTest, AYearWithoutACalendarIsNotPrepared) {
  const YearReadiness year = Of2028({});
  EXPECT_EQ(year.readiness, Readiness::kNotPrepared);
  EXPECT_FALSE(year.has_calendar);
}

TEST_F(YearReadinessTest, ACalendarWithoutAClosedDayIsNotPrepared) {
  const YearReadiness year = Of2028(CalendarContent{2028, {Marked("2028-03-01", kExceptionRule)}});
  EXPECT_EQ(year.readiness, Readiness::kNotPrepared);
  EXPECT_TRUE(year.has_calendar);
}

TEST_F(YearReadinessTest, ACalendarOfWeekendsAloneSaysSoAndCountsWhatIsMissing) {
  const YearReadiness year = Of2028(Sundays2028And({}));
  EXPECT_EQ(year.readiness, Readiness::kWeekendsOnly);
  EXPECT_EQ(year.differing_days, 1);
}

TEST_F(YearReadinessTest, ACalendarOfWeekendsAloneIsPreparedWhenTheBookHasNoMore) {
  UseBook("weekday | Sunday | weekday Sunday | Weekend\n");
  EXPECT_EQ(Of2028(Sundays2028And({})).readiness, Readiness::kPrepared);
}

TEST_F(YearReadinessTest, ACalendarAsPlannedIsPrepared) {
  const YearReadiness year = Of2028(Sundays2028And({Marked("2028-12-25", rule::kChristmas)}));
  EXPECT_EQ(year.readiness, Readiness::kPrepared);
  EXPECT_EQ(year.differing_days, 0);
  EXPECT_EQ(year.excepted_days, 0);
  EXPECT_THAT(year.unpublished, IsEmpty());
}

TEST_F(YearReadinessTest, CountsTheDaysThatDiffer) {
  const YearReadiness year =
      Of2028(Sundays2028And({Marked("2028-01-03", rule::kFair), Marked("2028-12-24", rule::kChristmas)}));
  EXPECT_EQ(year.readiness, Readiness::kDiffers);
  EXPECT_EQ(year.differing_days, 3);
}

TEST_F(YearReadinessTest, AnExceptionWithAReasonIsADecisionAndOneWithoutADifference) {
  const YearReadiness decided =
      Of2028(Sundays2028And({Marked("2028-12-25", kExceptionRule, "Stock-taking")}));
  EXPECT_EQ(decided.excepted_days, 1);
  EXPECT_EQ(decided.differing_days, 0);
  const YearReadiness blank = Of2028(
      Sundays2028And({Marked("2028-12-24", kExceptionRule, " "), Marked("2028-12-25", rule::kChristmas)}));
  EXPECT_EQ(blank.readiness, Readiness::kDiffers);
  EXPECT_EQ(blank.excepted_days, 0);
  EXPECT_EQ(blank.differing_days, 1);
}

TEST_F(YearReadinessTest, AYearAfterTheEndOfTheMoneyHasEnded) {
  currency_.last_day = Date(2027, 12, 31);
  EXPECT_EQ(Of2028(Sundays2028And({})).readiness, Readiness::kEnded);
  currency_.last_day = Date(2028, 1, 1);
  EXPECT_EQ(Of2028({}).readiness, Readiness::kWeekendsOnly);
}

TEST_F(YearReadinessTest, HolidaysWithoutABookAreComparedWithNothing) {
  currency_.book.reset();
  EXPECT_EQ(Of2028(Sundays2028And({Marked("2028-12-25", rule::kChristmas)})).readiness,
            Readiness::kNotCompared);
  EXPECT_EQ(Of2028(Sundays2028And({})).readiness, Readiness::kWeekendsOnly);
}

TEST_F(YearReadinessTest, AYearBeforeTheBookIsComparedWithNothing) {
  currency_.book->since = 2029;
  const YearReadiness year = Of2028(Sundays2028And({Marked("2028-12-25", rule::kChristmas)}));
  EXPECT_EQ(year.readiness, Readiness::kNotCompared);
  EXPECT_FALSE(year.can_be_planned);
}

TEST_F(YearReadinessTest, CanBePlannedWithAnUsableBookWhileTheMoneyLasts) {
  EXPECT_TRUE(Of2028({}).can_be_planned);
  currency_.last_day = Date(2027, 12, 31);
  EXPECT_FALSE(Of2028({}).can_be_planned);
  currency_.last_day.reset();
  currency_.book.reset();
  EXPECT_FALSE(Of2028({}).can_be_planned);
}

TEST_F(YearReadinessTest, NamesTheRulesWhoseDatesAreNotPublishedUntilSomebodyEntersThem) {
  tables_.Add({"fairs", 2020, 2027, {}});
  UseBook(
      "weekday | Sunday | weekday Sunday | Weekend\n"
      "point | Fair | table fairs | Announced\n");
  const YearReadiness unknown = Of2028(Sundays2028And({}));
  EXPECT_EQ(unknown.readiness, Readiness::kPrepared);
  EXPECT_THAT(unknown.unpublished, ElementsAre(Says("The date of Fair in 2028 is not known: the table fairs "
                                                    "reaches from 2020 to 2027")));
  const YearReadiness entered = Of2028(Sundays2028And({Marked("2028-03-01", rule::kFair)}));
  EXPECT_EQ(entered.readiness, Readiness::kPrepared);
  EXPECT_THAT(entered.unpublished, IsEmpty());
}

TEST_F(YearReadinessTest, GivesEachYearOfTheSpan) {
  currency_.calendars = {Sundays2028And({})};
  const RuleDirectory rules(SmallRules());
  const auto years = JudgeCurrency(currency_, rules, tables_, kHorizon, 2027, 2029).years;
  ASSERT_EQ(years.size(), 3U);
  EXPECT_EQ(years[0].year, 2027);
  EXPECT_EQ(years[0].readiness, Readiness::kNotPrepared);
  EXPECT_EQ(years[1].readiness, Readiness::kWeekendsOnly);
  EXPECT_EQ(years[2].year, 2029);
}

}  // namespace
}  // namespace ferrowind::almanac
