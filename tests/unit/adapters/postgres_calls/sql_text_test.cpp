#include "ferrowind/adapters/postgres_calls/sql_text.h"

#include <gtest/gtest.h>

namespace ferrowind::postgres {
namespace {

TEST(SqlText, ALiteralHasItsQuotesTwice) {
  EXPECT_EQ(Literal("O'Brien"), "'O''Brien'");
  EXPECT_EQ(Literal(""), "''");
}

TEST(SqlText, ALiteralWithABackslashMeansTheSameToEveryServer) {
  EXPECT_EQ(Literal("a\\'b"), " E'a\\\\''b'");
}

TEST(SqlText, AnIdentifierHasItsQuotesTwice) {
  EXPECT_EQ(Identifier("Name1"), "\"Name1\"");
  EXPECT_EQ(Identifier("a\"; DROP TABLE b"), "\"a\"\"; DROP TABLE b\"");
}

}  // namespace
}  // namespace ferrowind::postgres
