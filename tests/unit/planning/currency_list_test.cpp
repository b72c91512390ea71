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

TEST(CurrencyList, FindsCurrenciesByTheDigitsThatAPersonWrites) {
  const CurrencyList list({{8, "ALL", "Lek", true, {}}, {978, "EUR", "Euro", true, {}}});
  EXPECT_EQ(list.Named("978").code, "EUR");
  EXPECT_EQ(list.Named("8").code, "ALL");
  EXPECT_EQ(list.Named("008").code, "ALL");
  for (const char* const text : {"9", "8.0", "-8", "+8", " 8", "8x", "", "99999999999"}) {
    EXPECT_THAT(testing::FailureOf([&] { (void)list.Named(text); }).Description(),
                std::string("The database has no currency ") + text);
  }
}

TEST(CurrencyList, TakesAllForEveryCurrencyAndNotForTheOneOfThatCode) {
  const CurrencyList list({{8, "ALL", "Lek", true, {}}});
  EXPECT_EQ(testing::FailureOf([&] { (void)list.Named("all"); }).Description(),
            "all means all currencies, and here it takes one; write 8 for the currency of that code, Lek");
  EXPECT_EQ(testing::FailureOf([&] { (void)CurrencyList({}).Named("ALL"); }).Description(),
            "ALL means all currencies, and here it takes one");
  EXPECT_TRUE(MeansAllCurrencies("All"));
  EXPECT_FALSE(MeansAllCurrencies("8"));
}

TEST(CurrencyList, NamesAndWritesTheCurrencyWhoseCodeMeansAllSoThatItIsTheOne) {
  const Currency lek{8, "ALL", "Lek", true, {}};
  const Currency euro{978, "EUR", "Euro", true, {}};
  const CurrencyList list({lek, euro});
  EXPECT_EQ(WrittenFor(lek), "008");
  EXPECT_EQ(list.Named(WrittenFor(lek)).id, 8);
  EXPECT_EQ(WrittenFor(euro), "EUR");
  EXPECT_EQ(UnmistakableCode(lek), "ALL (Lek)");
  EXPECT_EQ(UnmistakableCode({8, "all", "", true, {}}), "all (008)");
  EXPECT_EQ(UnmistakableCode({8, "ALL", "ALL", true, {}}), "ALL (008)");
  EXPECT_EQ(UnmistakableCode(euro), "EUR");
  EXPECT_EQ(CalendarName(lek, 2028), "ALL (Lek) 2028");
  EXPECT_EQ(CalendarName(euro, 2028), "EUR 2028");
  EXPECT_EQ(EndOfMoney({8, "ALL", "Lek", false, {}}).InEnglish(), "ALL (Lek) is no money");
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
