#include "ferrowind/adapters/sql_script/statement_splitter.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sql_script {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<std::string> TextsOf(std::string_view script) {
  std::vector<std::string> texts;
  for (const auto& statement : SplitStatements(script)) texts.emplace_back(statement.text);
  return texts;
}

std::vector<std::size_t> LinesOf(std::string_view script) {
  std::vector<std::size_t> lines;
  for (const auto& statement : SplitStatements(script)) lines.push_back(statement.line);
  return lines;
}

std::string FailureTextOf(std::string_view script) {
  try {
    (void)SplitStatements(script);
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
  return "";
}

TEST(StatementSplitter, EndsAStatementAtASemicolon) {
  EXPECT_THAT(TextsOf("SELECT 1; SELECT 2;"), ElementsAre("SELECT 1", "SELECT 2"));
}

TEST(StatementSplitter, TakesALastStatementWithoutASemicolon) {
  EXPECT_THAT(TextsOf("SELECT 1;\nSELECT 2\n"), ElementsAre("SELECT 1", "SELECT 2"));
}

TEST(StatementSplitter, FindsNoStatementInBlanksCommentsAndSemicolons) {
  for (const char* script :
       {"", " \t\r\n\v\f", ";;;", "-- SELECT 1;", "-- a\n;--b", "/* SELECT 1; */", " ; /**/ ; -- x"}) {
    EXPECT_THAT(TextsOf(script), IsEmpty()) << script;
  }
}

TEST(StatementSplitter, KeepsASemicolonWithinQuotes) {
  for (const char* text : {"SELECT 'a;b'", "SELECT \"a;b\"", "SELECT `a;b`", "SELECT [a;b]", "SELECT 'a--b;'",
                           "SELECT '/*;'", "SELECT '\n;\n'"}) {
    EXPECT_THAT(TextsOf(std::string(text) + "; SELECT 2"), ElementsAre(text, "SELECT 2"));
  }
}

TEST(StatementSplitter, TakesADoubledQuoteForAQuoteWithin) {
  EXPECT_THAT(TextsOf("SELECT 'it''s; here'; SELECT \"a\"\";b\"; SELECT ''"),
              ElementsAre("SELECT 'it''s; here'", "SELECT \"a\"\";b\"", "SELECT ''"));
}

TEST(StatementSplitter, TakesAnotherQuoteWithinQuotesForText) {
  EXPECT_THAT(TextsOf("SELECT '\"'; SELECT \"'\"; SELECT '['; SELECT ']'"),
              ElementsAre("SELECT '\"'", "SELECT \"'\"", "SELECT '['", "SELECT ']'"));
}

TEST(StatementSplitter, KeepsASemicolonWithinComments) {
  EXPECT_THAT(TextsOf("SELECT 1 -- one; two\n+ 2; SELECT /* a; b */ 3"),
              ElementsAre("SELECT 1 -- one; two\n+ 2", "SELECT /* a; b */ 3"));
}

TEST(StatementSplitter, TakesAQuoteWithinACommentForComment) {
  EXPECT_THAT(TextsOf("-- it's\nSELECT 1; /* \" */ SELECT 2"), ElementsAre("SELECT 1", "SELECT 2"));
}

TEST(StatementSplitter, LeavesOutCommentsAroundAStatement) {
  EXPECT_THAT(TextsOf("/* before */ SELECT 1 /* after */; -- behind"), ElementsAre("SELECT 1"));
}

TEST(StatementSplitter, TakesASingleMinusOrSlashForAnOperator) {
  EXPECT_THAT(TextsOf("SELECT 1 - 2; SELECT 4 / 2; SELECT 2 * 3"),
              ElementsAre("SELECT 1 - 2", "SELECT 4 / 2", "SELECT 2 * 3"));
}

TEST(StatementSplitter, DoesNotEndACommentWithItsOwnBeginning) {
  EXPECT_THAT(FailureTextOf("SELECT 1; /*/ SELECT 2;"), HasSubstr("a comment that does not end"));
}

TEST(StatementSplitter, CountsTheLineOfEachStatement) {
  EXPECT_THAT(LinesOf("\n-- comment\nSELECT 1,\n  2;\n\nSELECT '\n\n'; SELECT 3"), ElementsAre(3U, 6U, 8U));
}

TEST(StatementSplitter, NamesTheLineOfWhatDoesNotEnd) {
  EXPECT_THAT(FailureTextOf("SELECT 1;\nSELECT 'a\n"), HasSubstr("Line 2 of the script has a quote"));
  EXPECT_THAT(FailureTextOf("\n\nSELECT \"a"), HasSubstr("Line 3 of the script has a quote"));
  EXPECT_THAT(FailureTextOf("SELECT `a"), HasSubstr("Line 1 of the script has a quote"));
  EXPECT_THAT(FailureTextOf("SELECT [a"), HasSubstr("Line 1 of the script has a bracket"));
  EXPECT_THAT(FailureTextOf("SELECT 1\n/* a"), HasSubstr("Line 2 of the script has a comment"));
}

TEST(StatementSplitter, RefusesANulWhereverItStands) {
  using namespace std::string_view_literals;
  for (const auto script :
       {"SELECT 1;\n\0"sv, "SELECT 1;\n'\0'"sv, "SELECT 1;\n-- \0\n"sv, "SELECT 1;\n/* \0 */"sv}) {
    EXPECT_THAT(FailureTextOf(script), HasSubstr("Line 2 of the script has the character NUL"));
  }
}

TEST(StatementSplitter, GivesTextsThatLieInTheScript) {
  const std::string script = "SELECT 1; SELECT 2";
  const auto statements = SplitStatements(script);
  ASSERT_EQ(statements.size(), 2U);
  EXPECT_EQ(statements[1].text.data(), script.data() + 10);
}

}  // namespace
}  // namespace ferrowind::sql_script
