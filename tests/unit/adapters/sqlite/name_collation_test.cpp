#include "ferrowind/adapters/sqlite/name_collation.h"

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/statement.h"

namespace ferrowind::sqlite {
namespace {

/// -1, 0 or 1 as the collation orders the two.
int Order(const std::string& left, const std::string& right) {
  const auto database = DatabaseHandle::InMemory();
  const platform::Value left_value(left);
  const platform::Value right_value(right);
  Statement compare(database, "SELECT (?1 > ?2 COLLATE FERROWIND_NAME) - (?1 < ?2 COLLATE FERROWIND_NAME)");
  compare.Bind(1, left_value);
  compare.Bind(2, right_value);
  EXPECT_TRUE(compare.Step());
  return static_cast<int>(compare.Integer(0));
}

TEST(NameCollation, IgnoresLetterCaseBeyondAscii) {
  EXPECT_EQ(Order("Easter", "EASTER"), 0);
  EXPECT_EQ(Order("Ostern Äö Ωψ Дя", "OSTERN äÖ ωΨ дЯ"), 0);
}

TEST(NameCollation, IgnoresOuterBlanksAndNoOthers) {
  EXPECT_EQ(Order("  Easter ", "Easter"), 0);
  EXPECT_EQ(Order("   ", ""), 0);
  EXPECT_NE(Order("Easter Monday", "EasterMonday"), 0);
  EXPECT_NE(Order("\tEaster", "Easter"), 0);
}

TEST(NameCollation, ComparesBeyondANul) {
  EXPECT_NE(Order(std::string("a\0b", 3), std::string("a\0c", 3)), 0);
}

TEST(NameCollation, OrdersNames) {
  EXPECT_EQ(Order("a", "B"), -1);
  EXPECT_EQ(Order("b", "A"), 1);
  EXPECT_EQ(Order("a", "ab"), -1);
}

}  // namespace
}  // namespace ferrowind::sqlite
