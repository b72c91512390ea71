#include "ferrowind/business_days/currency_codes.h"

#include <gmock/gmock.h>

namespace ferrowind::business_days {
namespace {

using testing::ElementsAre;

TEST(CurrencyCodes, AreReadInCapitalsAndInTheirOrder) {
  EXPECT_THAT(ReadCurrencyCodes("usd,EUR"), ElementsAre("USD", "EUR"));
}

TEST(CurrencyCodes, ThatAreMissingAreEmpty) {
  EXPECT_THAT(ReadCurrencyCodes(""), ElementsAre(""));
  EXPECT_THAT(ReadCurrencyCodes("EUR,,"), ElementsAre("EUR", "", ""));
}

}  // namespace
}  // namespace ferrowind::business_days
