#include <string>

#include <gtest/gtest.h>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/almanac/expression_error.h"

#include "tests/unit/almanac/random_expressions.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::RandomExpressions;

TEST(DateExpressionProperty, ItsNormalFormParsesToTheSame) {
  RandomExpressions random(20280416);
  for (int i = 0; i < 20'000; ++i) {
    const DateExpression expression = random.Any();
    const std::string text = expression.ToText();
    const DateExpression parsed = DateExpression::Parse(text);
    ASSERT_EQ(parsed, expression) << text;
    ASSERT_EQ(parsed.ToText(), text);
  }
}

TEST(DateExpressionProperty, LetterCaseAndBlanksMeanNothing) {
  RandomExpressions random(7);
  for (int i = 0; i < 5'000; ++i) {
    const DateExpression expression = random.Any();
    const std::string text = random.Scrambled(expression.ToText());
    ASSERT_EQ(DateExpression::Parse(text), expression) << text;
  }
}

TEST(DateExpressionProperty, AnErrorNamesAPlaceInTheText) {
  RandomExpressions random(99);
  int refused = 0;
  for (int i = 0; i < 20'000; ++i) {
    std::string text = random.Any().ToText();
    const auto place = static_cast<std::size_t>(random.Number(0, static_cast<int>(text.size()) - 1));
    if (random.Once(2)) {
      text.erase(place, static_cast<std::size_t>(random.Number(1, 3)));
    } else {
      text.insert(place, 1, static_cast<char>(random.Number(1, 255)));
    }
    try {
      const DateExpression parsed = DateExpression::Parse(text);
      ASSERT_EQ(DateExpression::Parse(parsed.ToText()), parsed) << text;
    } catch (const ExpressionError& error) {
      ++refused;
      ASSERT_GE(error.Place(), 1U) << text;
      ASSERT_LE(error.Place(), text.size() + 1) << text;
      ASSERT_FALSE(error.Expectation().IsEmpty());
    }
  }
  EXPECT_GT(refused, 5'000);
}

}  // namespace
}  // namespace ferrowind::almanac
