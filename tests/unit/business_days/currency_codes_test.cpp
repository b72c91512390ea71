#include "ferrowind/business_days/currency_codes.h"

#include <string>

#include <gmock/gmock.h>

#include "failure_of.h"

namespace ferrowind::business_days {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CurrencyCodes, AreReadInCapitalsAndInTheirOrder) {
  EXPECT_THAT(ReadCurrencyCodes("usd,EUR"), ElementsAre("USD", "EUR"));
}

TEST(CurrencyCodes, AreNoneInAnEmptyText) { EXPECT_THAT(ReadCurrencyCodes(""), IsEmpty()); }

TEST(CurrencyCodes, AreRefusedWhereOneIsMissing) {
  for (const char* text : {"EUR,", ",EUR", "EUR,,USD", ","}) {
    EXPECT_EQ(FailureOf([&] { return ReadCurrencyCodes(text); }),
              '"' + std::string(text) + "\" has a place without a currency's code");
  }
}

TEST(CurrencyCodes, AreThreeLetters) {
  EXPECT_EQ(ReadCurrencyCode("eUr"), "EUR");
  for (const char* text : {"", "EU", "EURO", "E,R", "EU1"}) {
    EXPECT_EQ(FailureOf([&] { return ReadCurrencyCode(text); }),
              '"' + std::string(text) + "\" is no code of a currency, as EUR");
  }
}

}  // namespace
}  // namespace ferrowind::business_days
