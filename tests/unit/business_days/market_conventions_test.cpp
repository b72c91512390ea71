#include "ferrowind/business_days/market_conventions.h"

#include <gtest/gtest.h>

#include "failure_of.h"

namespace ferrowind::business_days {
namespace {

TEST(MarketConventions, AreTwoDaysToSpotUnlessTheyAreRead) {
  const MarketConventions conventions =
      ReadMarketConventions("# the exceptions\n\nspot USD/CAD 1 # next day\r\nspot USDCOP 0");
  EXPECT_EQ(conventions.DaysToSpot({"EUR", "USD"}), 2);
  EXPECT_EQ(conventions.DaysToSpot({"USD", "CAD"}), 1);
  EXPECT_EQ(conventions.DaysToSpot({"CAD", "USD"}), 1);
  EXPECT_EQ(conventions.DaysToSpot({"USD", "COP"}), 0);
}

TEST(MarketConventions, CountEachCurrencyOfACrossAsAgainstTheDollar) {
  const MarketConventions conventions =
      ReadMarketConventions("spot USD/CAD 1\nspot USD/TRY 1\nspot USD/COP 0");
  EXPECT_EQ(conventions.DaysOfCurrency("CAD", {"EUR", "CAD"}), 1);
  EXPECT_EQ(conventions.DaysOfCurrency("EUR", {"EUR", "CAD"}), 2);
  EXPECT_EQ(conventions.DaysToSpot({"EUR", "CAD"}), 2);
  EXPECT_EQ(conventions.DaysToSpot({"CAD", "TRY"}), 1);
  EXPECT_EQ(conventions.DaysToSpot({"CAD", "COP"}), 1);
}

TEST(MarketConventions, CountBothCurrenciesOfANamedCrossAlike) {
  const MarketConventions conventions = ReadMarketConventions("spot USD/CAD 1\nspot CAD/EUR 0");
  EXPECT_EQ(conventions.DaysOfCurrency("CAD", {"EUR", "CAD"}), 0);
  EXPECT_EQ(conventions.DaysOfCurrency("EUR", {"EUR", "CAD"}), 0);
  EXPECT_EQ(conventions.DaysToSpot({"EUR", "CAD"}), 0);
}

TEST(MarketConventions, NameTheCurrenciesThatADollarHolidayStops) {
  const MarketConventions conventions = ReadMarketConventions("dollar-holiday-stops MXN\n");
  EXPECT_TRUE(conventions.DollarHolidayStops("MXN"));
  EXPECT_FALSE(conventions.DollarHolidayStops("EUR"));
}

TEST(MarketConventions, NameTheLineThatIsWrong) {
  const auto refusal = [](const char* text) {
    return FailureOf([&] { return ReadMarketConventions(text); });
  };
  EXPECT_EQ(refusal("\nspot USD/CAD 3"), "Line 2: \"3\" is no number of days to spot, which is 0, 1 or 2");
  EXPECT_EQ(refusal("spot USD 1"), "Line 1: \"USD\" is no currency pair, which is written EURUSD or EUR/USD");
  EXPECT_EQ(refusal("spot USDCAD 1\nspot CAD/USD 1"), "Line 2: CAD/USD is there twice");
  EXPECT_EQ(refusal("dollar-holiday-stops mxn"), "Line 1: \"mxn\" is no code of a currency, as MXN");
  EXPECT_EQ(refusal("dollar-holiday-stops MXN\ndollar-holiday-stops MXN"), "Line 2: MXN is there twice");
  EXPECT_EQ(refusal("sport USDCAD 1"),
            "Line 1: expected is \"spot PAIR DAYS\" or \"dollar-holiday-stops CURRENCY [no]\"");
  EXPECT_EQ(refusal("dollar-holiday-stops MXN\ndollar-holiday-stops MXN no"), "Line 2: MXN is there twice");
}

TEST(MarketConventions, AreAmendedByOthersAsFarAsThoseSaySomething) {
  MarketConventions conventions = ReadMarketConventions(
      "spot USDCAD 1\nspot USDTRY 1\ndollar-holiday-stops MXN\ndollar-holiday-stops CLP");
  conventions.Amend(ReadMarketConventions("spot CADUSD 2\nspot EURUSD 1\ndollar-holiday-stops MXN no"));
  EXPECT_EQ(conventions.DaysToSpot({"USD", "CAD"}), 2);
  EXPECT_EQ(conventions.DaysToSpot({"USD", "TRY"}), 1);
  EXPECT_EQ(conventions.DaysToSpot({"EUR", "USD"}), 1);
  EXPECT_FALSE(conventions.DollarHolidayStops("MXN"));
  EXPECT_TRUE(conventions.DollarHolidayStops("CLP"));
}

TEST(MarketConventions, RefuseDaysThatNoPairTakes) {
  MarketConventions conventions;
  EXPECT_EQ(FailureOf([&] {
              conventions.SetDaysToSpot({"EUR", "USD"}, 3);
              return 0;
            }),
            "EUR/USD: 3 is no number of days to spot, which is 0, 1 or 2");
}

}  // namespace
}  // namespace ferrowind::business_days
