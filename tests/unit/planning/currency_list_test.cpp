#include "ferrowind/planning/currency_list.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::HasSubstr;
using testing::RunInFreshThread;

TEST(CurrencyList, FindsCurrenciesByNumberAndByCodeInAnyLetterCase) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCurrencies();
    const CurrencyList list = CurrencyList::Load();
    EXPECT_EQ(list.All().size(), 4U);
    ASSERT_NE(list.Find(840), nullptr);
    EXPECT_EQ(list.Find(840)->name, "US Dollar");
    EXPECT_EQ(list.Find(1), nullptr);
    EXPECT_EQ(list.Named("eur").id, 978);
    EXPECT_THAT(testing::FailureOf([&] { (void)list.Named("EUX"); }).Description(), HasSubstr("EUX"));
  });
}

TEST(CurrencyList, KnowsWhichCurrenciesAreMoneyInAYear) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCurrencies();
    const CurrencyList list = CurrencyList::Load();
    EXPECT_TRUE(list.Named("EUR").IsLiveIn(2028));
    EXPECT_TRUE(list.Named("HRK").IsLiveIn(2022));
    EXPECT_FALSE(list.Named("HRK").IsLiveIn(2023));
    EXPECT_FALSE(list.Named("XAU").IsLiveIn(2028));
  });
}

}  // namespace
}  // namespace ferrowind::planning
