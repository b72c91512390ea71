#include "ferrowind/planning/year_overview.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;

const std::vector<Currency> kCurrencies = {
    {840, "USD", "US Dollar", true, {}}, {978, "EUR", "Euro", true, {}}, {392, "JPY", "Yen", true, {}}};

ProcedureScript& AnswerMarkedDays(PlanningWorld& component, Rows days) {
  return component.world.commands.Answer("CldGetMarkedDays")
      .Takes("@FromYear", ParameterType::kInt32)
      .Takes("@ToYear", ParameterType::kInt32)
      .Gives({"ID1", "Year1", "Day1", "TID1", "ID2", "Comment"}, std::move(days));
}

TEST(YearOverview, HasTheCalendarsOfTheYearInTheOrderOfTheCurrencies) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerRules({{840, 2028}, {978, 2027}, {978, 2028}});
    AnswerMarkedDays(component, {{978, 2028, 2, 2, 2, {}}, {978, 2028, 3, 1, 1, "Fair"}});
    const YearOverview overview = YearOverview::Load(kCurrencies, 2028);
    EXPECT_EQ(overview.Year(), 2028);
    ASSERT_THAT(overview.Calendars(), SizeIs(3));
    const auto& dollar = overview.Calendars()[0];
    EXPECT_EQ(dollar.currency.code, "USD");
    EXPECT_TRUE(dollar.exists);
    EXPECT_EQ(dollar.content.year, 2028);
    EXPECT_THAT(dollar.content.days, IsEmpty());
    const auto& euro = overview.Calendars()[1];
    EXPECT_TRUE(euro.exists);
    ASSERT_THAT(euro.content.days, SizeIs(2));
    EXPECT_EQ(euro.content.days[1].comment, "Fair");
    EXPECT_FALSE(overview.Calendars()[2].exists);
    EXPECT_EQ(overview.Calendars()[2].content.year, 2028);
  });
}

TEST(YearOverview, NamesTheRulesOfDays) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerRules({});
    AnswerMarkedDays(component, {});
    const YearOverview overview = YearOverview::Load(kCurrencies, 2028);
    EXPECT_EQ(overview.NameOf({.rule = 3}), "Christmas Day");
    EXPECT_EQ(overview.NameOf({.rule = 4}), "Fair") << "a removed rule stays on its days";
    EXPECT_EQ(overview.NameOf({.rule = 99}), "rule 99");
  });
}

TEST(YearOverview, ReadsAnyNumberOfCalendarsInTwoCalls) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerRules({});
    AnswerMarkedDays(component, {});
    (void)YearOverview::Load(kCurrencies, 2028);
    const auto& calls = component.world.commands.Calls();
    ASSERT_THAT(calls, SizeIs(2));
    EXPECT_EQ(calls[1].Parameter("@FromYear"), Value(2028));
    EXPECT_EQ(calls[1].Parameter("@ToYear"), Value(2028));
  });
}

TEST(YearOverview, HasACalendarThatWasMadeWhileItWasRead) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerRules({});
    AnswerMarkedDays(component, {{978, 2028, 2, 2, 2, {}}});
    EXPECT_TRUE(YearOverview::Load(kCurrencies, 2028).Calendars()[1].exists);
  });
}

}  // namespace
}  // namespace ferrowind::planning
