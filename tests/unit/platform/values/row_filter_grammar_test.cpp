#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/row_filter.h"

#include "tests/support/failure_of.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;

const std::vector<std::string> kFields = {"A", "B", "C", "Holiday type", "_x9", "Ärger", "and"};

/// Whether a row passes whose fields A, B and C hold these numbers.
bool Passes(const std::string& filter, int a, int b, int c) {
  return RowFilter(filter, kFields).Matches({kFields, {a, b, c, 4, 5, 6, 7}, 1}, 0);
}

bool PassesOneTwoThree(const std::string& filter) { return Passes(filter, 1, 2, 3); }

/// Each assignment of 0 and 1 to A, B and C that passes, as "abc".
std::string Passing(const std::string& filter) {
  std::string passing;
  for (int bits = 0; bits < 8; ++bits) {
    const int a = bits >> 2;
    const int b = bits >> 1 & 1;
    const int c = bits & 1;
    if (Passes(filter, a, b, c)) {
      passing += std::to_string(a) + std::to_string(b) + std::to_string(c) + ' ';
    }
  }
  return passing;
}

std::string Nested(std::size_t depth) { return std::string(depth, '(') + "A = 1" + std::string(depth, ')'); }

/// Expects the failure of `filter` to name `place` and to end with `reason`.
void ExpectNotUnderstood(const std::string& filter, std::size_t place, const std::string& reason) {
  const Failure failure = FailureOf([&] { const RowFilter compiled(filter, kFields); });
  EXPECT_EQ(failure.Number(), failure_number::kFilterNotUnderstood);
  EXPECT_EQ(failure.Description(), "The filter \"" + filter + "\" is not understood at position " +
                                       std::to_string(place) + ": " + reason);
}

constexpr const char* kNoField = "a field name or \"(\" is expected";
constexpr const char* kNoOperator = "one of = <> < <= > >= is expected";
constexpr const char* kNoLiteral = "a number, a text in single quotes, a date between # or NULL is expected";
constexpr const char* kNoNumber = "this is not a number, or one out of range";
constexpr const char* kNoDate = "this is not a date YYYY-MM-DD or MM/DD/YYYY";
constexpr const char* kNoEnd = "\"and\", \"or\" or the end is expected";

TEST(RowFilterGrammar, JoinsComparisonsByAndAndOr) {
  EXPECT_EQ(Passing("A = 1 and B = 1"), "110 111 ");
  EXPECT_EQ(Passing("A = 1 or B = 1"), "010 011 100 101 110 111 ");
}

TEST(RowFilterGrammar, BindsAndTighterThanOr) {
  EXPECT_EQ(Passing("A = 1 or B = 1 and C = 1"), "011 100 101 110 111 ");
  EXPECT_EQ(Passing("A = 1 and B = 1 or C = 1"), "001 011 101 110 111 ");
}

TEST(RowFilterGrammar, LetsParenthesesGroup) {
  EXPECT_EQ(Passing("(A = 1 or B = 1) and C = 1"), "011 101 111 ");
  EXPECT_EQ(Passing("A = 1 and (B = 1 or C = 1)"), "101 110 111 ");
  EXPECT_EQ(Passing("((A = 1) and ((B = 1) or (C = 1)))"), "101 110 111 ");
}

TEST(RowFilterGrammar, JoinsLongChains) {
  EXPECT_EQ(Passing("A = 1 and B = 1 and C = 1"), "111 ");
  EXPECT_EQ(Passing("A = 1 or B = 1 or C = 1"), "001 010 011 100 101 110 111 ");
  EXPECT_EQ(Passing("(A = 1 and B = 1) or (B = 1 and C = 1) or (A = 1 and C = 1)"), "011 101 110 111 ");
  EXPECT_EQ(Passing("(A = 1 or B = 1) and (B = 1 or C = 1) and (A = 1 or C = 1)"), "011 101 110 111 ");
}

TEST(RowFilterGrammar, ReadsWordsAndFieldsWithoutRegardToCase) {
  EXPECT_TRUE(PassesOneTwoThree("a = 1 AND b = 2 Or c = nUlL"));
  EXPECT_TRUE(PassesOneTwoThree("äRGER = 6"));
}

TEST(RowFilterGrammar, NeedsNoBlanksWhereSignsSeparate) {
  EXPECT_TRUE(PassesOneTwoThree("(A<>2)and(B>=2)or C=NULL"));
  EXPECT_TRUE(PassesOneTwoThree("\tA\n=\r1 "));
  EXPECT_FALSE(PassesOneTwoThree("A='x'and B=2"));
}

TEST(RowFilterGrammar, KnowsAllOperators) {
  EXPECT_EQ(Passing("A = 0"), "000 001 010 011 ");
  EXPECT_EQ(Passing("A <> 0"), "100 101 110 111 ");
  EXPECT_EQ(Passing("A < 1"), "000 001 010 011 ");
  EXPECT_EQ(Passing("A <= 0"), "000 001 010 011 ");
  EXPECT_EQ(Passing("A > 0"), "100 101 110 111 ");
  EXPECT_EQ(Passing("A >= 1"), "100 101 110 111 ");
}

TEST(RowFilterGrammar, TakesAnyFieldNameInBrackets) {
  EXPECT_TRUE(PassesOneTwoThree("[Holiday type] = 4"));
  EXPECT_TRUE(PassesOneTwoThree("[a] = 1"));
  EXPECT_TRUE(PassesOneTwoThree("[and] = 7"));
}

TEST(RowFilterGrammar, TakesLettersDigitsAndUnderscoresWithoutBrackets) {
  EXPECT_TRUE(PassesOneTwoThree("_x9 = 5"));
  EXPECT_TRUE(PassesOneTwoThree("Ärger = 6"));
}

TEST(RowFilterGrammar, TakesTheFirstOfFieldsOfTheSameName) {
  const RecordRows rows = {{"F", "f"}, {1, 2}, 1};
  EXPECT_TRUE(RowFilter("f = 1", rows.fields).Matches(rows, 0));
}

TEST(RowFilterGrammar, ReadsNumbersWithSignPointAndExponent) {
  for (const std::string number : {"1", "+1", "1.0", "1.", "0.1e1", "10e-1", "1E0", "0.1E+1", "01"}) {
    EXPECT_TRUE(PassesOneTwoThree("A = " + number)) << number;
  }
  EXPECT_TRUE(PassesOneTwoThree("A > -.5"));
}

TEST(RowFilterGrammar, ReadsADoubledQuoteAsOne) {
  const RecordRows rows = {{"F"}, {"New Year's Day"}, 1};
  EXPECT_TRUE(RowFilter("F = 'New Year''s Day'", rows.fields).Matches(rows, 0));
  EXPECT_FALSE(RowFilter("F = ''''", rows.fields).Matches(rows, 0));
}

TEST(RowFilterGrammar, TakesTextAsItStands) {
  const std::string text("a\0 (and) [x] \n\xC3\xA4", 15);
  const RecordRows rows = {{"F"}, {text}, 1};
  EXPECT_TRUE(RowFilter("F = '" + text + "'", rows.fields).Matches(rows, 0));
}

TEST(RowFilterGrammar, NestsAHundredParenthesesAndNoMore) {
  EXPECT_TRUE(PassesOneTwoThree(Nested(100)));
  ExpectNotUnderstood(Nested(101), 101, "parentheses nest more than 100 deep");
  ExpectNotUnderstood(std::string(100000, '('), 101, "parentheses nest more than 100 deep");
}

TEST(RowFilterGrammar, CountsNestingNotParentheses) {
  std::string filter = "(A = 1)";
  for (int i = 0; i < 300; ++i) filter += " and (A = 1)";
  EXPECT_TRUE(PassesOneTwoThree(filter));
}

TEST(RowFilterGrammar, ExpectsAFieldFirst) {
  ExpectNotUnderstood("", 1, kNoField);
  ExpectNotUnderstood("  ", 3, kNoField);
  ExpectNotUnderstood("1 = A", 1, kNoField);
  ExpectNotUnderstood("A = 1 and", 10, kNoField);
  ExpectNotUnderstood("A = 1 or or B = 2", 10, kNoField);
  ExpectNotUnderstood("and = 7", 1, kNoField);
  ExpectNotUnderstood("NULL = NULL", 1, kNoField);
  ExpectNotUnderstood("()", 2, kNoField);
  ExpectNotUnderstood("not A = 1", 1, "there is no field named not");
}

TEST(RowFilterGrammar, NamesAnUnknownFieldAndItsPlace) {
  ExpectNotUnderstood("A = 1 and Del <> 2", 11, "there is no field named Del");
  ExpectNotUnderstood("[Holiday] = 1", 1, "there is no field named Holiday");
  ExpectNotUnderstood("[] = 1", 1, "there is no field named ");
  ExpectNotUnderstood("A = 1 or [A = 2", 10, "the bracket is not closed");
}

TEST(RowFilterGrammar, ExpectsAnOperatorBehindTheField) {
  ExpectNotUnderstood("A", 2, kNoOperator);
  ExpectNotUnderstood("A 1", 3, kNoOperator);
  ExpectNotUnderstood("A != 1", 3, kNoOperator);
  ExpectNotUnderstood("A like 'x'", 3, kNoOperator);
}

TEST(RowFilterGrammar, ExpectsALiteralBehindTheOperator) {
  ExpectNotUnderstood("A =", 4, kNoLiteral);
  ExpectNotUnderstood("A = B", 5, kNoLiteral);
  ExpectNotUnderstood("A = NULLS", 5, kNoLiteral);
  ExpectNotUnderstood("A == 1", 4, kNoLiteral);
  ExpectNotUnderstood("A = \"x\"", 5, kNoLiteral);
  ExpectNotUnderstood("A < > 1", 5, kNoLiteral);
}

TEST(RowFilterGrammar, RefusesWhatIsNoNumber) {
  for (const std::string number :
       {"1x", "1and", "1.2.3", "+-1", "-+1", "--1", "+", "-", ".", "1e", "0x1", "-inf", "+nan", "1e999"}) {
    ExpectNotUnderstood("A = " + number, 5, kNoNumber);
  }
}

TEST(RowFilterGrammar, RefusesTextWithoutAClosingQuote) {
  ExpectNotUnderstood("A = 'x", 5, "the text has no closing quote");
  ExpectNotUnderstood("A = 'x''", 5, "the text has no closing quote");
  ExpectNotUnderstood("A = '", 5, "the text has no closing quote");
}

TEST(RowFilterGrammar, RefusesWhatIsNoDate) {
  for (const std::string date :
       {"", "2026-02-30", "02/30/2026", "25/12/2026", "12-25-2026", "2026-12-25 ", "1/1/2026"}) {
    ExpectNotUnderstood("A = #" + date + "#", 5, kNoDate);
  }
  ExpectNotUnderstood("A = #2026-12-25", 5, "the date has no closing #");
}

TEST(RowFilterGrammar, ExpectsTheEndOrAJoiningWordBehindAComparison) {
  ExpectNotUnderstood("A = 1 B = 2", 7, kNoEnd);
  ExpectNotUnderstood("A = 1)", 6, kNoEnd);
  ExpectNotUnderstood("A = 1 andB = 2", 7, kNoEnd);
  ExpectNotUnderstood("A = 1;", 6, kNoEnd);
}

TEST(RowFilterGrammar, ExpectsParenthesesToBeClosed) {
  ExpectNotUnderstood("(A = 1", 7, "\"and\", \"or\" or \")\" is expected");
  ExpectNotUnderstood("((A = 1) or B = 2", 18, "\"and\", \"or\" or \")\" is expected");
}

TEST(RowFilterGrammar, CountsPlacesInCharactersNotInBytes) { ExpectNotUnderstood("Ärger = 6 x", 11, kNoEnd); }

}  // namespace
}  // namespace ferrowind::platform
