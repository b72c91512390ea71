#include <cstddef>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/planner.h"

#include "tests/unit/almanac/naive_plan.h"
#include "tests/unit/almanac/random_expressions.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::NaivePlan;
using ::ferrowind::testing::RandomExpressions;
using platform::Date;

std::string StandingText(Standing standing) {
  switch (standing) {
    case Standing::kBase:
      return "base";
    case Standing::kSubstitute:
      return "substitute";
    case Standing::kMoved:
      return "moved";
  }
  return {};
}

std::map<Date, std::string> DaysOf(const YearPlan& plan) {
  std::map<Date, std::string> days;
  for (const PlannedDay& day : plan.Days()) {
    days[plan.DateOf(day)] = std::to_string(day.rule) + ' ' + StandingText(day.standing);
  }
  return days;
}

/// A book whose holidays fall on each other: many of them around the turn of the year and in one spring.
RuleBook RandomBook(RandomExpressions& random) {
  RuleBook book{"P", "D", {}, {}};
  for (const char* text : {"weekday Saturday", "weekday Sunday"}) {
    if (!random.Once(10))
      book.rules.push_back({text, RuleKind::kWeekday, DateExpression::Parse(text), "", ""});
  }
  if (random.Once(3)) book.rules.push_back({"B", RuleKind::kPoint, DateExpression::Parse("between"), "", ""});
  for (int count = random.Number(1, 14); count > 0; --count) {
    BookRule rule{"A", RuleKind::kPoint, random.Dated(), "", ""};
    if (random.Once(2)) {
      const int month = random.Once(2) ? 1 : random.Once(2) ? 12 : 5;
      rule.expression.steps.clear();
      rule.expression.anchor = FixedDate{month, month == 12 ? random.Number(24, 31) : random.Number(1, 6)};
    }
    if (random.Once(8)) {
      rule.kind = RuleKind::kWorkingDay;
      rule.expression.moves.clear();
      rule.expression.else_not_observed = false;
    }
    book.rules.push_back(std::move(rule));
  }
  return book;
}

TEST(PlannerProperty, PlansAsTheNaiveModelDoes) {
  RandomExpressions random(4711);
  std::size_t substitutes = 0;
  for (int i = 0; i < 250; ++i) {
    const RuleBook book = RandomBook(random);
    const int year = random.Number(2020, 2040);
    const YearPlan plan = PlanYear(book, year, {});
    for (const PlannedDay& day : plan.Days()) substitutes += day.standing == Standing::kSubstitute ? 1 : 0;
    ASSERT_EQ(DaysOf(plan), NaivePlan(book, year)) << year << '\n' << WriteBook(book);
  }
  EXPECT_GT(substitutes, 150U);
}

TEST(PlannerProperty, HasAReasonForEachDay) {
  RandomExpressions random(42);
  for (int i = 0; i < 30; ++i) {
    const RuleBook book = RandomBook(random);
    const YearPlan plan = PlanYear(book, random.Number(2020, 2040), {});
    for (int day = 1; day <= platform::DaysInYear(plan.Year()); ++day) {
      const std::string why = plan.WhyOf(day).InEnglish();
      ASSERT_EQ(why.starts_with("An ordinary working day"), plan.Find(day) == nullptr) << why;
    }
  }
}

}  // namespace
}  // namespace ferrowind::almanac
