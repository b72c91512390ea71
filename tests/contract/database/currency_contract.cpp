// What CldIUCurrency and CldGetCurrencies do.

#include <gmock/gmock.h>

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::Contains;
using ::testing::Not;

Arguments Currency(const Value& number, const Value& code, const Value& type, const Value& name,
                   const Value& last_day = {}) {
  return {{"CcyID", number}, {"Ccy", code}, {"CcyType", type}, {"Name", name}, {"LastDay", last_day}};
}

TEST_P(ProceduresContract, CurrenciesAreGivenByTheirNumbers) {
  const auto currencies = RowsOf(*caller().Call("CldGetCurrencies").record_sets.at(0));
  EXPECT_THAT(currencies, Contains(Row{kEuro, "EUR", std::int16_t{0}, "Euro", {}}));
  EXPECT_THAT(currencies, Contains(Row{kGold, "XAU", std::int16_t{1}, "Gold", {}}));
  for (std::size_t i = 1; i < currencies.size(); ++i) {
    EXPECT_LT(*currencies[i - 1][0].If<std::int32_t>(), *currencies[i][0].If<std::int32_t>());
  }
}

TEST_P(ProceduresContract, ACurrencyIsAddedAndCanHaveACalendar) {
  ASSERT_EQ(CreateCalendar(998, 2028), 3);
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(998, "ZZZ", 0, "Zed")), 0);
  EXPECT_THAT(RowsOf(*caller().Call("CldGetCurrencies").record_sets.at(0)),
              Contains(Row{998, "ZZZ", std::int16_t{0}, "Zed", {}}));
  EXPECT_THAT(RowsOf(*database().Engine().ReadDictionary(database().ConnectionString(), "Ccy")),
              Contains(Row{998, "ZZZ", std::int16_t{0}, "Zed"}));
  EXPECT_EQ(CreateCalendar(998, 2028), 0);
}

TEST_P(ProceduresContract, ACurrencyIsChanged) {
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUX", 0, "Euro, renamed", Date(2027, 6, 30))),
            0);
  const auto currencies = RowsOf(*caller().Call("CldGetCurrencies").record_sets.at(0));
  EXPECT_THAT(currencies, Contains(Row{kEuro, "EUX", std::int16_t{0}, "Euro, renamed", Date(2027, 6, 30)}));
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(kDollar, "EUR", 1, "Dollar")), 0);
  EXPECT_THAT(RowsOf(*caller().Call("CldGetCurrencies").record_sets.at(0)),
              Contains(Row{kDollar, "EUR", std::int16_t{1}, "Dollar", {}}));
}

TEST_P(ProceduresContract, ARetiredCurrencyGetsNoCalendarsOfLaterYears) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 0, "Euro", Date(2027, 1, 1))), 0);
  EXPECT_EQ(CreateCalendar(kEuro, 2028), 3);
  EXPECT_EQ(Apply(kEuro, 2028, "[]"), 3);
  EXPECT_EQ(Fingerprint(kEuro, 2028), "");
  EXPECT_EQ(CreateCalendar(kEuro, 2027), 0);
  EXPECT_EQ(Apply(kEuro, 2026, R"([{"TID1": 1, "Dates": ["2026-05-01"], "DayComment": "open"}])"), 0);
  EXPECT_EQ(Apply(kEuro, 2025, "[]"), 0);
}

TEST_P(ProceduresContract, ARetiredCurrencyIsMoneyAgainWithoutALastDay) {
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 1, "Euro", Date(2020, 12, 31))), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 3);
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 0, "Euro")), 0);
  EXPECT_THAT(RowsOf(*caller().Call("CldGetCurrencies").record_sets.at(0)),
              Contains(Row{kEuro, "EUR", std::int16_t{0}, "Euro", {}}));
  EXPECT_EQ(CreateCalendar(kEuro, 2028), 0);
}

TEST_P(ProceduresContract, ARetiredCurrencyWithCalendarsHasNoLastDayAnyMore) {
  ASSERT_EQ(CreateCalendar(kEuro, 2020), 0);
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 0, "Euro", Date(2020, 12, 31))), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 3);
  ASSERT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 0, "Euro")), 0);
  EXPECT_EQ(CreateCalendar(kEuro, 2028), 0);
}

TEST_P(ProceduresContract, ACurrencyWithCalendarsOfLaterYearsDoesNotEndBefore) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto before = Content();
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 0, "Euro", Date(2027, 12, 31))), 9);
  EXPECT_EQ(Content(), before);
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 0, "Euro", Date(2028, 1, 1))), 0);
}

TEST_P(ProceduresContract, ACurrencyInUseStaysMoney) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  ASSERT_EQ(StoreBook(kDollar, "[]"), 0);
  const auto before = Content();
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(kEuro, "EUR", 1, "Euro")), 9);
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(kDollar, "USD", 1, "US Dollar")), 9);
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, ACodeOfAnotherCurrencyIsRefused) {
  const auto before = Content();
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(998, "EUR", 0, "Another euro")), 2);
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(kDollar, "EUR", 0, "Another euro")), 2);
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, ACurrencyWithAValueMissingOrOutOfRangeIsRefused) {
  const auto before = Content();
  for (const Arguments& arguments :
       {Arguments{}, Currency({}, "ZZZ", 0, "Z"), Currency(0, "ZZZ", 0, "Z"), Currency(1000, "ZZZ", 0, "Z"),
        Currency(-1, "ZZZ", 0, "Z"), Currency(998, {}, 0, "Z"), Currency(998, "", 0, "Z"),
        Currency(998, "ZZ", 0, "Z"), Currency(998, "ZZZZ", 0, "Z"), Currency(998, "zzz", 0, "Z"),
        Currency(998, "ZZ1", 0, "Z"), Currency(998, "ZÄZ", 0, "Z"), Currency(998, "ZZZ ", 0, "Z"),
        Currency(998, "ZZZ", {}, "Z"), Currency(998, "ZZZ", 2, "Z"), Currency(998, "ZZZ", -1, "Z"),
        Currency(998, "ZZZ", 0, {}), Currency(998, "ZZZ", 0, ""), Currency(998, "ZZZ", 0, "  ")}) {
    EXPECT_EQ(caller().Return("CldIUCurrency", arguments), 7);
  }
  EXPECT_EQ(Content(), before);
}

}  // namespace
}  // namespace ferrowind::contract
