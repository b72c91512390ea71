#include "ferrowind/adapters/grid_engine/value_order.h"

#include <limits>

#include <gtest/gtest.h>

namespace ferrowind::grid_engine {
namespace {

using platform::Date;
using platform::Value;

TEST(ValueOrder, PutsEmptyBeforeNumbersBeforeDatesBeforeTexts) {
  const Value ascending[] = {Value(), Value(std::int32_t{5}), Value(Date(1900, 1, 1)), Value("")};
  for (std::size_t i = 0; i + 1 < std::size(ascending); ++i) {
    EXPECT_LT(CompareValues(ascending[i], ascending[i + 1]), 0);
    EXPECT_GT(CompareValues(ascending[i + 1], ascending[i]), 0);
  }
}

TEST(ValueOrder, ComparesNumbersOfAllWidthsByTheirAmount) {
  EXPECT_EQ(CompareValues(Value(std::int16_t{2}), Value(std::int64_t{2})), 0);
  EXPECT_EQ(CompareValues(Value(2.0F), Value(std::int32_t{2})), 0);
  EXPECT_LT(CompareValues(Value(std::int32_t{2}), Value(2.5)), 0);
  EXPECT_LT(CompareValues(Value(false), Value(true)), 0);
  EXPECT_LT(CompareValues(Value(std::int64_t{9007199254740992}), Value(std::int64_t{9007199254740993})), 0);
}

TEST(ValueOrder, PutsNotANumberBeforeAllNumbersAndBesideItself) {
  const Value not_a_number(std::numeric_limits<double>::quiet_NaN());
  EXPECT_LT(CompareValues(not_a_number, Value(-std::numeric_limits<double>::infinity())), 0);
  EXPECT_EQ(CompareValues(not_a_number, not_a_number), 0);
  EXPECT_EQ(CompareValues(Value(-0.0), Value(0.0)), 0);
}

TEST(ValueOrder, ComparesTextsWithoutRegardToLetterCase) {
  EXPECT_EQ(CompareValues(Value("Zürich"), Value("zÜRICH")), 0);
  EXPECT_LT(CompareValues(Value("a"), Value("B")), 0);
}

TEST(ValueOrder, TellsTextsOfOtherLetterCaseApartAsValues) {
  EXPECT_FALSE(SameValue(Value("a"), Value("A")));
  EXPECT_TRUE(SameValue(Value("a"), Value("a")));
  EXPECT_TRUE(SameValue(Value(std::int16_t{2}), Value(std::int64_t{2})));
  EXPECT_FALSE(SameValue(Value(), Value("")));
}

}  // namespace
}  // namespace ferrowind::grid_engine
