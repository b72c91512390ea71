#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/row_filter.h"

namespace ferrowind::platform {
namespace {

/// Whether the only field `F`, holding `value`, passes `comparison`, which is written without the field's
/// name.
bool Passes(const Value& value, const std::string& comparison) {
  return RowFilter("F " + comparison, {"F"}).Matches({{"F"}, {value}, 1}, 0);
}

/// The operators that accept `value` before `literal`, in the order = <> < <= > >=.
std::string Accepting(const Value& value, const std::string& literal) {
  std::string accepting;
  for (const std::string op : {"=", "<>", "<", "<=", ">", ">="}) {
    if (Passes(value, op + ' ' + literal)) accepting += op + ' ';
  }
  return accepting;
}

constexpr const char* kLess = "<> < <= ";
constexpr const char* kEqual = "= <= >= ";
constexpr const char* kGreater = "<> > >= ";
constexpr const char* kIncomparable = "";

TEST(RowFilterComparison, ComparesNumbersOfEveryType) {
  const std::vector<Value> ones = {std::int16_t{1}, 1, std::int64_t{1}, 1.0F, 1.0};
  for (const Value& one : ones) {
    EXPECT_EQ(Accepting(one, "2"), kLess);
    EXPECT_EQ(Accepting(one, "1"), kEqual);
    EXPECT_EQ(Accepting(one, "1.0"), kEqual);
    EXPECT_EQ(Accepting(one, "1.5"), kLess);
    EXPECT_EQ(Accepting(one, "0.5"), kGreater);
    EXPECT_EQ(Accepting(one, "-1"), kGreater);
  }
}

TEST(RowFilterComparison, ComparesFractions) {
  EXPECT_EQ(Accepting(1.5, "1"), kGreater);
  EXPECT_EQ(Accepting(1.5, "2"), kLess);
  EXPECT_EQ(Accepting(-1.5, "-1"), kLess);
  EXPECT_EQ(Accepting(-1, "-1.5"), kGreater);
  EXPECT_EQ(Accepting(0.1, "0.1"), kEqual);
}

TEST(RowFilterComparison, ComparesLargeNumbersExactly) {
  constexpr std::int64_t kLarge = std::int64_t{1} << 53;
  EXPECT_EQ(Accepting(kLarge + 1, "9007199254740992"), kGreater);
  EXPECT_EQ(Accepting(kLarge + 1, "9007199254740992.0"), kGreater);
  EXPECT_EQ(Accepting(9007199254740992.0, "9007199254740993"), kLess);
  EXPECT_EQ(Accepting(std::numeric_limits<std::int64_t>::max(), "9223372036854775807"), kEqual);
  EXPECT_EQ(Accepting(std::numeric_limits<std::int64_t>::max(), "9223372036854775808"), kLess);
  EXPECT_EQ(Accepting(std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"), kEqual);
  EXPECT_EQ(Accepting(std::numeric_limits<std::int64_t>::min(), "-1e300"), kGreater);
  EXPECT_EQ(Accepting(1e300, "9223372036854775807"), kGreater);
}

TEST(RowFilterComparison, CountsTrueAsMinusOne) {
  EXPECT_EQ(Accepting(true, "-1"), kEqual);
  EXPECT_EQ(Accepting(false, "0"), kEqual);
}

TEST(RowFilterComparison, ComparesNothingWithANumberThatIsNone) {
  const double not_a_number = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Accepting(not_a_number, "1"), kIncomparable);
  EXPECT_EQ(Accepting(not_a_number, "1.5"), kIncomparable);
}

TEST(RowFilterComparison, ComparesTextsWithoutRegardToCase) {
  EXPECT_EQ(Accepting("Easter", "'EASTER'"), kEqual);
  EXPECT_EQ(Accepting("ПАСХА", "'пасха'"), kEqual);
  EXPECT_EQ(Accepting("apple", "'Banana'"), kLess);
  EXPECT_EQ(Accepting("Cherry", "'banana'"), kGreater);
  EXPECT_EQ(Accepting("", "''"), kEqual);
  EXPECT_EQ(Accepting("a ", "'a'"), kGreater);
}

TEST(RowFilterComparison, ComparesDates) {
  EXPECT_EQ(Accepting(Date(2026, 12, 24), "#2026-12-25#"), kLess);
  EXPECT_EQ(Accepting(Date(2026, 12, 25), "#2026-12-25#"), kEqual);
  EXPECT_EQ(Accepting(Date(2026, 12, 25), "#12/25/2026#"), kEqual);
  EXPECT_EQ(Accepting(Date(2027, 1, 1), "#12/25/2026#"), kGreater);
}

TEST(RowFilterComparison, AnEmptyFieldEqualsNullAndPassesNothingElse) {
  EXPECT_EQ(Accepting(Value(), "NULL"), "= ");
  for (const std::string literal : {"0", "0.5", "''", "'a'", "#2026-12-25#"}) {
    EXPECT_EQ(Accepting(Value(), literal), kIncomparable) << literal;
  }
}

TEST(RowFilterComparison, AFilledFieldDiffersFromNullAndHasNoOrderWithIt) {
  const std::vector<Value> filled = {0, false, "", 0.0, Date(2026, 1, 1)};
  for (const Value& value : filled) EXPECT_EQ(Accepting(value, "NULL"), "<> ");
}

TEST(RowFilterComparison, ValuesOfOtherTypesPassNoOperator) {
  EXPECT_EQ(Accepting("1", "1"), kIncomparable);
  EXPECT_EQ(Accepting("1", "1.5"), kIncomparable);
  EXPECT_EQ(Accepting(1, "'1'"), kIncomparable);
  EXPECT_EQ(Accepting("2026-12-25", "#2026-12-25#"), kIncomparable);
  EXPECT_EQ(Accepting(Date(1900, 1, 1), "2"), kIncomparable);
  EXPECT_EQ(Accepting(Value(Value::Object()), "0"), kIncomparable);
}

TEST(RowFilterComparison, ReadsTheCellOfItsOwnRowAndField) {
  const RecordRows rows = {{"A", "B"}, {1, 2, 3, 4}, 2};
  const RowFilter filter("B = 4", rows.fields);
  EXPECT_FALSE(filter.Matches(rows, 0));
  EXPECT_TRUE(filter.Matches(rows, 1));
}

}  // namespace
}  // namespace ferrowind::platform
