// What CldIUConvention and CldGetConventions do.

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t kYen = 392;
constexpr std::int32_t kNone = 998;

Arguments Pair(const Value& currency, const Value& other, const Value& days) {
  return {{"CcyID", currency}, {"OtherID", other}, {"SpotDays", days}};
}

Arguments Single(const Value& currency, const Value& stops) {
  return {{"CcyID", currency}, {"DollarStops", stops}};
}

int Set(ProcedureCaller& caller, const Arguments& arguments) {
  return caller.Return("CldIUConvention", arguments);
}

std::vector<Row> Conventions(ProcedureCaller& caller) {
  return RowsOf(*caller.Call("CldGetConventions").record_sets.at(0));
}

TEST_P(ProceduresContract, ADatabaseBeginsWithoutConventions) {
  EXPECT_THAT(Conventions(caller()), IsEmpty());
}

TEST_P(ProceduresContract, ConventionsOfPairsInEitherOrderAndOfCurrenciesAreGivenByNumber) {
  ASSERT_EQ(Set(caller(), Pair(kEuro, kDollar, 1)), 0);
  ASSERT_EQ(Set(caller(), Single(kYen, 0)), 0);
  ASSERT_EQ(Set(caller(), Single(kEuro, 1)), 0);
  ASSERT_EQ(Set(caller(), Pair(kGold, kDollar, 0)), 0) << "a metal has them, too";
  EXPECT_THAT(Conventions(caller()),
              ElementsAre(Row{kYen, {}, "JPY", {}, {}, 0}, Row{kDollar, kGold, "USD", "XAU", 0, {}},
                          Row{kDollar, kEuro, "USD", "EUR", 1, {}}, Row{kEuro, {}, "EUR", {}, {}, 1}));
}

TEST_P(ProceduresContract, ConventionsAreReplacedAndTakenBack) {
  ASSERT_EQ(Set(caller(), Pair(kEuro, kDollar, 1)), 0);
  ASSERT_EQ(Set(caller(), Pair(kDollar, kEuro, 2)), 0);
  EXPECT_THAT(Conventions(caller()), ElementsAre(Row{kDollar, kEuro, "USD", "EUR", 2, {}}));
  ASSERT_EQ(Set(caller(), Single(kEuro, 1)), 0);
  ASSERT_EQ(Set(caller(), Pair(kEuro, kDollar, {})), 0);
  ASSERT_EQ(Set(caller(), Single(kEuro, {})), 0);
  EXPECT_THAT(Conventions(caller()), IsEmpty());
  EXPECT_EQ(Set(caller(), Pair(kEuro, kDollar, {})), 9);
  EXPECT_EQ(Set(caller(), Single(kEuro, {})), 9);
}

TEST_P(ProceduresContract, ConventionsThatAreNoneAreRefused) {
  for (const Arguments& arguments :
       {Arguments{}, Pair({}, kDollar, 1), Pair(kEuro, kEuro, 1), Pair(kEuro, {}, 1), Pair(kEuro, kDollar, 3),
        Pair(kEuro, kDollar, -1), Single(kEuro, 2), Single(kEuro, -1),
        Arguments{{"CcyID", kEuro}, {"OtherID", kDollar}, {"DollarStops", 1}},
        Arguments{{"CcyID", kEuro}, {"OtherID", kDollar}, {"SpotDays", 1}, {"DollarStops", 1}},
        Arguments{{"CcyID", kEuro}, {"SpotDays", 1}, {"DollarStops", 1}}}) {
    EXPECT_EQ(Set(caller(), arguments), 7);
  }
  EXPECT_EQ(Set(caller(), Pair(kNone, kDollar, 1)), 3);
  EXPECT_EQ(Set(caller(), Pair(kDollar, kNone, 1)), 3);
  EXPECT_EQ(Set(caller(), Single(kNone, 1)), 3);
  EXPECT_EQ(Set(caller(), Single(kNone, {})), 3);
  EXPECT_THAT(Conventions(caller()), IsEmpty());
}

TEST_P(ProceduresContract, ConventionsAreInTheHistoryAndItsRowsAndCanBeUndone) {
  ASSERT_EQ(Set(caller(), Pair(kEuro, kDollar, 1)), 0);
  const auto added = LastEntry();
  ASSERT_EQ(Set(caller(), Pair(kEuro, kDollar, 0)), 0);
  const auto changed = LastEntry();
  const auto history = caller().Call("CldGetHistory", {{"EntryID", changed}});
  const auto rows = RowsOf(*history.record_sets.at(2));
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(Row(rows[0].begin(), rows[0].begin() + 4), (Row{"CldConvention", kDollar, {}, kEuro}));
  const auto content = [&](std::size_t column) {
    return nlohmann::json::parse(platform::ToText(rows[0].at(column)));
  };
  EXPECT_EQ(content(4), (nlohmann::json{{"SpotDays", 1}, {"DollarStops", nullptr}}));
  EXPECT_EQ(content(5), (nlohmann::json{{"SpotDays", 0}, {"DollarStops", nullptr}}));
  EXPECT_EQ(Undo(added), 9) << "it was changed since";
  ASSERT_EQ(Undo(changed), 0);
  EXPECT_THAT(Conventions(caller()), ElementsAre(Row{kDollar, kEuro, "USD", "EUR", 1, {}}));
  ASSERT_EQ(Set(caller(), Pair(kEuro, kDollar, {})), 0);
  const auto removed = LastEntry();
  ASSERT_EQ(Undo(removed), 0);
  EXPECT_THAT(Conventions(caller()), ElementsAre(Row{kDollar, kEuro, "USD", "EUR", 1, {}}));
  ASSERT_EQ(Undo(LastEntry()), 0) << "the undoing";
  EXPECT_THAT(Conventions(caller()), IsEmpty());
}

TEST_P(ProceduresContract, ConventionsKeepTheirCurrenciesAndComeBackOnlyToThem) {
  ASSERT_EQ(
      caller().Return("CldIUCurrency", {{"CcyID", kNone}, {"Ccy", "ZZZ"}, {"CcyType", 0}, {"Name", "Zed"}}),
      0);
  const auto currency = LastEntry();
  ASSERT_EQ(Set(caller(), Pair(kNone, kDollar, 1)), 0);
  EXPECT_EQ(Undo(currency), 9);
  ASSERT_EQ(Set(caller(), Pair(kNone, kDollar, {})), 0);
  const auto removed = LastEntry();
  ASSERT_EQ(Undo(currency), 0);
  EXPECT_EQ(Undo(removed), 9);
}

}  // namespace
}  // namespace ferrowind::contract
