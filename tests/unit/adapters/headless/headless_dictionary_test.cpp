#include "ferrowind/adapters/headless/headless_dictionary.h"

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {
namespace {

TEST(HeadlessDictionary, HasNoTableThatWasRemoved) {
  CallLog log;
  HeadlessDictionary dictionary(log);
  dictionary.SetCurrencies({{978, "EUR"}});
  ASSERT_NE(dictionary.dic_GetDicRecByFilter("Ccy", ""), nullptr);
  dictionary.SetTable("Ccy", nullptr);
  EXPECT_THROW(static_cast<void>(dictionary.dic_GetDicRecByFilter("Ccy", "")), platform::Failure);
}

TEST(HeadlessDictionary, RemovesATableThatItDoesNotHaveWithoutAWord) {
  CallLog log;
  HeadlessDictionary dictionary(log);
  EXPECT_NO_THROW(dictionary.SetTable("Nowhere", nullptr));
  EXPECT_THROW(static_cast<void>(dictionary.dic_GetDicRecByFilter("Nowhere", "")), platform::Failure);
}

}  // namespace
}  // namespace ferrowind::headless
