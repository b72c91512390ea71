#include "ferrowind/adapters/sqlite/sql_functions.h"

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/statement.h"

namespace ferrowind::sqlite {
namespace {

std::string Answer(const std::string& query) {
  const auto database = DatabaseHandle::InMemory();
  Statement ask(database, query);
  EXPECT_TRUE(ask.Step());
  return std::string(ask.Text(0));
}

std::string FingerprintOf(const std::string& rows) {
  return Answer("WITH r (a, b) AS (VALUES " + rows + ") SELECT FERROWIND_FINGERPRINT(a, b) FROM r");
}

TEST(SqlFunctions, AFingerprintTellsRowsFromOthers) {
  const std::string fingerprint = FingerprintOf("('ab', 'c'), (NULL, 7)");
  EXPECT_EQ(fingerprint.size(), 32U);
  EXPECT_EQ(FingerprintOf("('ab', 'c'), (NULL, 7)"), fingerprint);
  for (const char* other :
       {"('a', 'bc'), (NULL, 7)", "('ab', 'c'), ('', 7)", "('ab', 'c'), (NULL, 8)", "(NULL, 7), ('ab', 'c')",
        "('ab', 'c')", "('ab', 'c'), (NULL, 7), (NULL, NULL)"}) {
    EXPECT_NE(FingerprintOf(other), fingerprint) << other;
  }
}

TEST(SqlFunctions, NoRowsHaveAFingerprint) {
  EXPECT_EQ(Answer("SELECT FERROWIND_FINGERPRINT(x) FROM (SELECT 1 AS x WHERE 0)").size(), 32U);
}

TEST(SqlFunctions, DaysAreOneTextWithTheBytesOfTheirComments) {
  const auto days_of = [](const std::string& rows) {
    return Answer("WITH r (a, b, c, d) AS (VALUES " + rows + ") SELECT FERROWIND_DAYS(a, b, c, d) FROM r");
  };
  EXPECT_EQ(days_of("(1, 3, 2147483647, NULL)"), "1,3,2147483647,0:");
  EXPECT_EQ(days_of("(1, 2, 7, ''), (366, 1, 1, 'Größe, 1:')"), "1,2,7,0:366,1,1,11:Größe, 1:");
  EXPECT_EQ(days_of("(1, 2, 7, 'a' || char(0) || 'b')"), std::string("1,2,7,3:a\0b", 11));
  EXPECT_EQ(Answer("SELECT FERROWIND_DAYS(1, 2, 3, 4) WHERE 0"), "");
}

TEST(SqlFunctions, TextIsWellFormedAndHasNoNul) {
  const auto is_text = [](const std::string& text) {
    return Answer("SELECT FERROWIND_IS_TEXT(" + text + ")") == "1";
  };
  EXPECT_TRUE(is_text("''"));
  EXPECT_TRUE(is_text("'Größe 祝日'"));
  EXPECT_TRUE(is_text("NULL"));
  EXPECT_TRUE(is_text("7"));
  EXPECT_FALSE(is_text("'a' || char(0) || 'b'"));
  EXPECT_FALSE(is_text("json_extract('[\"\\ud800\"]', '$[0]')"));
  EXPECT_FALSE(is_text("CAST(X'ff' AS TEXT)"));
}

}  // namespace
}  // namespace ferrowind::sqlite
