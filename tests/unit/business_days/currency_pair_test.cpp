#include "ferrowind/business_days/currency_pair.h"

#include <gtest/gtest.h>

#include "failure_of.h"

namespace ferrowind::business_days {
namespace {

TEST(CurrencyPair, IsReadWithAndWithoutAStroke) {
  EXPECT_EQ(ReadCurrencyPair("EURUSD"), (CurrencyPair{"EUR", "USD"}));
  EXPECT_EQ(ReadCurrencyPair("eur/usd"), (CurrencyPair{"EUR", "USD"}));
  EXPECT_EQ(ReadCurrencyPair("EURUSD").Text(), "EUR/USD");
}

TEST(CurrencyPair, RefusesWhatIsNone) {
  for (const char* text : {"", "EUR", "EURUS", "EUR-USD", "EUR/USDX", "EU1USD", "/EURUSD", "EURUSD/"}) {
    EXPECT_EQ(FailureOf([&] { return ReadCurrencyPair(text); }),
              '"' + std::string(text) + "\" is no currency pair, which is written EURUSD or EUR/USD");
  }
  EXPECT_EQ(FailureOf([&] { return ReadCurrencyPair("EUReur"); }), "\"EUReur\" has the same currency twice");
}

}  // namespace
}  // namespace ferrowind::business_days
