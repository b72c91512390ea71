#include "ferrowind/platform/values/conversion.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/record_set.h"

#include "tests/support/failure_of.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

Value AnObject() {
  return std::make_shared<RecordSet>(std::vector<std::string>{"F"}, std::vector<std::vector<Value>>{});
}

/// The number of the failure of each conversion of `value`, in the order of their declaration.
std::vector<std::int32_t> FailuresOfAll(const Value& value) {
  return {
      FailureOf([&] { (void)ToInt16(value); }).Number(),  FailureOf([&] { (void)ToInt32(value); }).Number(),
      FailureOf([&] { (void)ToSingle(value); }).Number(), FailureOf([&] { (void)ToDouble(value); }).Number(),
      FailureOf([&] { (void)ToDate(value); }).Number(),   FailureOf([&] { (void)ToText(value); }).Number()};
}

TEST(Conversion, NothingCanBeMadeOfAnEmptyValue) {
  EXPECT_EQ(FailuresOfAll(Value()), std::vector<std::int32_t>(6, failure_number::kInvalidUseOfNull));
}

TEST(Conversion, NothingCanBeMadeOfAnObject) {
  EXPECT_EQ(FailuresOfAll(AnObject()), std::vector<std::int32_t>(6, failure_number::kTypeMismatch));
}

TEST(Conversion, MakesWholeNumbersOfEveryKindOfNumber) {
  EXPECT_EQ(ToInt32(std::int16_t{-3}), -3);
  EXPECT_EQ(ToInt32(7), 7);
  EXPECT_EQ(ToInt32(std::int64_t{2147483647}), 2147483647);
  EXPECT_EQ(ToInt32(2.0F), 2);
  EXPECT_EQ(ToInt32(-2.0), -2);
  EXPECT_EQ(ToInt16(32767), 32767);
  EXPECT_EQ(ToInt16(-32768), -32768);
}

TEST(Conversion, CountsTrueAsMinusOne) {
  EXPECT_EQ(ToInt16(true), -1);
  EXPECT_EQ(ToInt32(true), -1);
  EXPECT_EQ(ToInt32(false), 0);
}

TEST(Conversion, CountsADateAsItsSerial) {
  EXPECT_EQ(ToInt32(Date(1900, 1, 1)), 2);
  EXPECT_EQ(ToDouble(Date(2026, 1, 1)), 46023.0);
}

TEST(Conversion, RoundsHalvesToTheEvenNumber) {
  EXPECT_EQ(ToInt32(0.5), 0);
  EXPECT_EQ(ToInt32(1.5), 2);
  EXPECT_EQ(ToInt32(2.5), 2);
  EXPECT_EQ(ToInt32(-0.5), 0);
  EXPECT_EQ(ToInt32(-1.5), -2);
  EXPECT_EQ(ToInt32(2.51), 3);
  EXPECT_EQ(ToInt16("2.5"), 2);
}

TEST(Conversion, RefusesNumbersOutOfRange) {
  EXPECT_EQ(FailureOf([] { (void)ToInt16(32768); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToInt16(-32769); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToInt16(32767.5); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToInt32(std::int64_t{2147483648}); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToInt32("1e10"); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToSingle(1e39); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToDouble("1e999"); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToDouble(kInfinity); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToText(kInfinity); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(FailureOf([] { (void)ToDate(3000000); }).Number(), failure_number::kOverflow);
}

TEST(Conversion, ReadsNumbersFromTextWithOuterBlanks) {
  EXPECT_EQ(ToInt32(" 42 "), 42);
  EXPECT_EQ(ToInt32("+42"), 42);
  EXPECT_EQ(ToInt32("-42"), -42);
  EXPECT_EQ(ToDouble("0.25"), 0.25);
  EXPECT_EQ(ToDouble("2.5e2"), 250.0);
  EXPECT_EQ(ToSingle("0.5"), 0.5F);
}

TEST(Conversion, RefusesTextThatIsNotANumber) {
  for (const std::string text : {"", " ", "x", "1x", "1 2", "1,5", "+-1", "--1", "+", "-", "0x10", "inf",
                                 "nan", "\t1", "+inf", "1.0.0"}) {
    EXPECT_EQ(FailureOf([&] { (void)ToDouble(text); }).Number(), failure_number::kTypeMismatch) << text;
    EXPECT_EQ(FailureOf([&] { (void)ToInt32(text); }).Number(), failure_number::kTypeMismatch) << text;
  }
}

TEST(Conversion, MakesADateOfIsoTextADateOrASerial) {
  EXPECT_EQ(ToDate(Date(2026, 5, 1)), Date(2026, 5, 1));
  EXPECT_EQ(ToDate(" 2026-05-01 "), Date(2026, 5, 1));
  EXPECT_EQ(ToDate(2), Date(1900, 1, 1));
  EXPECT_EQ(ToDate(std::int16_t{1}), Date(1899, 12, 31));
}

TEST(Conversion, RefusesTextThatIsNoIsoDate) {
  for (const std::string text : {"", "01.05.2026", "2026-02-30", "46023", "2026-05-01x"}) {
    EXPECT_EQ(FailureOf([&] { (void)ToDate(text); }).Number(), failure_number::kTypeMismatch) << text;
  }
}

TEST(Conversion, WritesEveryPlainValueAsText) {
  EXPECT_EQ(ToText(true), "True");
  EXPECT_EQ(ToText(false), "False");
  EXPECT_EQ(ToText(std::int16_t{-5}), "-5");
  EXPECT_EQ(ToText(978), "978");
  EXPECT_EQ(ToText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  EXPECT_EQ(ToText(0.5F), "0.5");
  EXPECT_EQ(ToText(0.1), "0.1");
  EXPECT_EQ(ToText(Date(2026, 5, 1)), "2026-05-01");
  EXPECT_EQ(ToText(" as it is "), " as it is ");
}

TEST(Conversion, WritesNumbersWithoutAnExponent) {
  EXPECT_EQ(ToText(100000.0), "100000");
  EXPECT_EQ(ToText(100000.0F), "100000");
  EXPECT_EQ(ToText(0.00001), "0.00001");
  EXPECT_EQ(ToText(1e300).find_first_not_of("0123456789"), std::string::npos);
  EXPECT_EQ(ToDouble(ToText(1e300)), 1e300);
  EXPECT_EQ(ToDouble(ToText(-std::numeric_limits<double>::min())), -std::numeric_limits<double>::min());
  EXPECT_EQ(ToDouble(ToText(-std::numeric_limits<double>::max())), -std::numeric_limits<double>::max());
}

TEST(Conversion, WritesAnEmptyValueAsEmptyTextOnlyWhereAskedTo) {
  EXPECT_EQ(ToTextOrEmpty(Value()), "");
  EXPECT_EQ(ToTextOrEmpty(7), "7");
  EXPECT_EQ(FailureOf([] { (void)ToTextOrEmpty(AnObject()); }).Number(), failure_number::kTypeMismatch);
}

TEST(Conversion, TrimsBlanksAtBothEndsOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\ta\n"), "\ta\n");
}

}  // namespace
}  // namespace ferrowind::platform
