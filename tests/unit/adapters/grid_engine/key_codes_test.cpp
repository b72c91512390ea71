#include "ferrowind/adapters/grid_engine/key_codes.h"

#include <limits>

#include <gtest/gtest.h>

#include "ferrowind/adapters/grid_engine/value_order.h"

#include "tests/unit/adapters/grid_engine/value_table.h"

namespace ferrowind::grid_engine {
namespace {

using platform::Value;

/// That the codes say of every two records what `CompareValues` says of their values.
void ExpectSameOrder(const std::vector<Value>& values) {
  const ValueTable table({values});
  const KeyCodes codes = CodesOfColumn(table, 1, table.RecordCount());
  ASSERT_EQ(codes.codes.size(), values.size());
  const auto sign = [](auto difference) { return (difference > 0) - (difference < 0); };
  for (std::size_t i = 0; i < values.size(); ++i) {
    ASSERT_LT(codes.codes[i], codes.limit);
    for (std::size_t j = 0; j < values.size(); ++j) {
      const auto difference = std::int64_t{codes.codes[i]} - std::int64_t{codes.codes[j]};
      ASSERT_EQ(sign(difference), sign(CompareValues(values[i], values[j])))
          << "records " << i << " and " << j;
    }
  }
}

TEST(KeyCodes, KeepTheOrderOfMixedValues) {
  std::mt19937 random(20260501);
  std::vector<Value> values;
  for (int i = 0; i < 400; ++i) values.push_back(AnyValue(random));
  ExpectSameOrder(values);
}

TEST(KeyCodes, KeepTheOrderOfNumbersAcrossTheWholeRange) {
  ExpectSameOrder({Value(std::numeric_limits<std::int64_t>::min()), Value(std::int64_t{-1}),
                   Value(std::int64_t{0}), Value(std::int64_t{1}),
                   Value(std::numeric_limits<std::int64_t>::max()), Value(std::int16_t{-1})});
}

TEST(KeyCodes, KeepTheOrderOfFractionsOfBothSigns) {
  ExpectSameOrder({Value(-1.5), Value(-0.0), Value(0.0), Value(1e300), Value(-1e300), Value(1.5F),
                   Value(std::numeric_limits<double>::infinity()),
                   Value(std::numeric_limits<double>::quiet_NaN()), Value(std::int32_t{1})});
}

TEST(KeyCodes, KeepTheOrderOfManyDifferentTextsThatBeginAlike) {
  std::vector<Value> values;
  for (int i = 0; i < 700; ++i) {
    std::string text = (i % 2 == 0 ? "COMMON PREFIX " : "common prefix ") + std::to_string((i * 37) % 311);
    values.emplace_back(std::move(text));
  }
  ExpectSameOrder(values);
}

TEST(KeyCodes, KeepTheOrderOfManyWideNumbers) {
  std::mt19937_64 random(7);
  std::vector<Value> values;
  for (int i = 0; i < 3000; ++i) values.emplace_back(static_cast<std::int64_t>(random()));
  const ValueTable table({values});
  const KeyCodes codes = CodesOfColumn(table, 1, table.RecordCount());
  for (std::size_t i = 1; i < values.size(); ++i) {
    ASSERT_EQ(codes.codes[i - 1] < codes.codes[i], CompareValues(values[i - 1], values[i]) < 0)
        << "record " << i;
  }
}

TEST(KeyCodes, OfNoRecordsAreNone) {
  const ValueTable table(std::vector<std::vector<Value>>(1));
  const KeyCodes codes = CodesOfColumn(table, 1, 0);
  EXPECT_TRUE(codes.codes.empty());
  EXPECT_EQ(codes.limit, 1U);
}

}  // namespace
}  // namespace ferrowind::grid_engine
