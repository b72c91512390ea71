#include "ferrowind/adapters/sqlite/text_functions.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/memory_limit.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using ::testing::HasSubstr;

/// All answers to the same questions, which `database` computes by its own functions.
std::string AnswersOf(sqlite3* database, const std::string& expression) {
  const std::string query =
      "WITH T (x) AS (VALUES (NULL), (''), ('a'), ('ab'), ('aab'), ('\u00e9a'), ('a\u00e9'), ('\u00e9'), "
      "(x'6162'),"
      " (x'62'), (12), (1.5), (' a '), ('a b a'), ('abab'), ('\U0001F600b'))"
      " SELECT group_concat(quote(g), '|') FROM (SELECT " +
      expression + " AS g FROM T a, T b, T c)";
  sqlite3_stmt* statement = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(database, query.c_str(), -1, &statement, nullptr), SQLITE_OK)
      << sqlite3_errmsg(database);
  EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW) << sqlite3_errmsg(database);
  std::string answers = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
  sqlite3_finalize(statement);
  return answers;
}

TEST(TextFunctions, GiveWhatSqlitesOwnGive) {
  sqlite3* own = nullptr;
  ASSERT_EQ(sqlite3_open(":memory:", &own), SQLITE_OK);
  const auto database = DatabaseHandle::InMemory();
  for (const char* expression :
       {"instr(a.x, b.x)", "replace(a.x, b.x, c.x)", "trim(a.x, ' ab')", "trim(a.x, '')", "a.x LIKE b.x",
        "a.x LIKE ('%' || b.x || '_')", "a.x LIKE ('a%' || b.x) ESCAPE 'a'", "a.x GLOB ('*' || b.x || '?')",
        "a.x GLOB ('[' || b.x || ']*')", "like(a.x, b.x, NULL)"}) {
    EXPECT_TRUE(AnswersOf(database.Get(), expression) == AnswersOf(own, expression)) << expression;
  }
  sqlite3_close(own);
}

TEST(TextFunctions, DoNotTakeLongerThanTheirTextsAreLong) {
  // Minutes, if each place were compared with all of what is looked for.
  const std::string texts =
      "WITH RECURSIVE D (s, n) AS (SELECT 'a', 0 UNION ALL SELECT s || s, n + 1 FROM D WHERE n < 23)"
      " SELECT s AS long, substr(s, 1, length(s) / 2) || 'b' AS wanted FROM D WHERE n = 23";
  const auto database = DatabaseHandle::InMemory();
  Statement ask(database,
                "SELECT instr(long, wanted), length(replace(long, wanted, 'c')) FROM (" + texts + ")");
  ASSERT_TRUE(ask.Step());
  EXPECT_EQ(ask.Integer(0), 0);
  EXPECT_EQ(ask.Integer(1), 8 * 1024 * 1024);
}

TEST(TextFunctions, RefuseWhatTakesLongerThanTheirTextsAreLong) {
  const auto failure_of = [](const std::string& query) -> std::string {
    try {
      const auto database = DatabaseHandle::InMemory();
      Statement(database, query).Step();
    } catch (const platform::Failure& failure) {
      return failure.Description();
    }
    return "";
  };
  EXPECT_THAT(failure_of("SELECT trim('a', printf('%.65c', 'a'))"), HasSubstr("up to 64 letters"));
  for (const char* matching :
       {"'a' LIKE printf('%.101c', 'a')", "printf('%.65537c', 'a') LIKE 'a%b' ESCAPE 'x'",
        "printf('%.65537c', 'a') GLOB '*b'"}) {
    EXPECT_THAT(failure_of(std::string("SELECT ") + matching), HasSubstr("up to 64 KB")) << matching;
  }
  EXPECT_THAT(failure_of("SELECT 'a' LIKE 'a' ESCAPE '%'"), HasSubstr("ESCAPE takes"));
  EXPECT_THAT(failure_of("SELECT replace(printf('%.100000c', 'a'), 'a', printf('%.100000c', 'b'))"),
              HasSubstr("too long"));
}

TEST(TextFunctions, AProgramCanLimitTheMemoryOfAll) {
  LimitMemoryOfProcess();
  EXPECT_EQ(sqlite3_hard_heap_limit64(-1), 1024LL * 1024 * 1024);
  sqlite3_hard_heap_limit64(0);
}

}  // namespace
}  // namespace ferrowind::sqlite
