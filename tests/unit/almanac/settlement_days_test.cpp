// The delivered books against what was published: holidays of whole years, single days of history, and the
// days that the first five currencies had before there were books.

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/year_plan.h"

#include "database/seed/delivered_books.h"
#include "tests/unit/almanac/delivered_plans.h"
#include "tests/unit/almanac/settlement_facts.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::DeliveredPlan;
using ::ferrowind::testing::FirstDeliveredDays;
using ::ferrowind::testing::HistoricDay;
using ::ferrowind::testing::HistoricDays;
using ::ferrowind::testing::NamedDay;
using ::ferrowind::testing::PublishedYear;
using ::ferrowind::testing::PublishedYears;
using ::ferrowind::testing::WeekdayHolidays;
using ::ferrowind::testing::WorkingWeekendDays;
using platform::Date;

constexpr int kFirstBookYear = 2015;
constexpr int kFirstListedYear = 2024;
/// A list that ends earlier ends with what its publisher has announced.
constexpr int kLastListedYear = 2027;

std::string Told(const Date& date, std::string_view kind, const std::string& name,
                 const std::string& comment) {
  return date.ToIso() + " " + std::string(kind) + " | " + name + " | " + comment;
}

TEST(DeliveredBooks, GiveTheFirstFiveCurrenciesTheDaysThatTheyHadBefore) {
  std::map<std::pair<std::string, int>, std::set<std::string>> expected;
  for (const NamedDay& day : FirstDeliveredDays()) {
    expected[{day.currency, day.date.Year()}].insert(Told(day.date, day.kind, day.name, day.comment));
  }
  ASSERT_EQ(expected.size(), 10U);
  for (const auto& [calendar, days] : expected) {
    const YearPlan plan = DeliveredPlan(calendar.first, calendar.second);
    std::set<std::string> planned;
    for (const PlannedDay& day : plan.Days()) {
      if (plan.KindOf(day) != RuleKind::kWeekday) {
        planned.insert(
            Told(plan.DateOf(day), TextOf(plan.KindOf(day)), plan.NameOf(day), plan.CommentOf(day)));
      }
    }
    EXPECT_EQ(planned, days) << calendar.first << " " << calendar.second;
  }
}

class DeliveredBookOf : public ::testing::TestWithParam<std::string> {};

std::vector<std::string> Dates(const std::vector<std::string>& dates_and_names) {
  std::vector<std::string> dates;
  for (const std::string& line : dates_and_names) dates.push_back(line.substr(0, line.find(' ')));
  return dates;
}

TEST_P(DeliveredBookOf, GivesTheDaysOfThePublishedLists) {
  const std::map<int, PublishedYear> published = PublishedYears(GetParam());
  ASSERT_FALSE(published.empty());
  for (int year = kFirstListedYear; year <= published.rbegin()->first; ++year) {
    EXPECT_TRUE(published.contains(year)) << year;
  }
  for (const auto& [year, days] : published) {
    const PublishedYear planned{Dates(WeekdayHolidays(GetParam(), year)),
                                Dates(WorkingWeekendDays(GetParam(), year))};
    EXPECT_EQ(planned, days) << year;
  }
}

TEST_P(DeliveredBookOf, PlansCompletelyAsFarAsItsListReachesAndTellsWhereItDoesNot) {
  const int last = PublishedYears(GetParam()).rbegin()->first;
  for (int year = kFirstBookYear; year <= last; ++year) {
    EXPECT_TRUE(DeliveredPlan(GetParam(), year).Incomplete().empty()) << year;
  }
  if (last < kLastListedYear) {
    EXPECT_FALSE(DeliveredPlan(GetParam(), last + 1).Incomplete().empty());
  }
}

TEST_P(DeliveredBookOf, KnowsTheHistoryOfItsCurrency) {
  const std::vector<HistoricDay> days = HistoricDays(GetParam());
  ASSERT_FALSE(days.empty());
  for (const HistoricDay& day : days) {
    const YearPlan plan = DeliveredPlan(GetParam(), day.date.Year());
    const PlannedDay* planned = plan.Find(day.date.DayOfYear());
    const bool closed = planned != nullptr && plan.KindOf(*planned) != RuleKind::kWorkingDay;
    EXPECT_EQ(closed, day.closed) << day.date.ToIso() << " " << day.reason
                                  << "; the plan says: " << plan.WhyOf(day.date.DayOfYear()).InEnglish();
  }
}

std::vector<std::string> Currencies() {
  std::vector<std::string> currencies;
  for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) currencies.emplace_back(book.name);
  return currencies;
}

INSTANTIATE_TEST_SUITE_P(Delivered, DeliveredBookOf, ::testing::ValuesIn(Currencies()),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace ferrowind::almanac
