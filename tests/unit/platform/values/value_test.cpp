#include "ferrowind/platform/values/value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::platform {
namespace {

std::shared_ptr<RecordSet> NewRecordSet() {
  return std::make_shared<RecordSet>(std::vector<std::string>{"F"}, std::vector<std::vector<Value>>{{1}});
}

static_assert(std::is_convertible_v<const char*, Value> && std::is_convertible_v<char*, Value>);
static_assert(std::is_convertible_v<bool, Value>);
// What is bytes of a text in a library's or a system's own type is no truth value.
static_assert(!std::is_constructible_v<Value, const unsigned char*> &&
              !std::is_constructible_v<Value, const wchar_t*>);
static_assert(!std::is_constructible_v<Value, const char8_t*> && !std::is_constructible_v<Value, void*>);
static_assert(!std::is_constructible_v<Value, RecordSet*> && !std::is_constructible_v<Value, void (*)()>);

TEST(Value, IsEmptyUntilItIsGivenOne) {
  EXPECT_TRUE(Value().IsEmpty());
  EXPECT_FALSE(Value("").IsEmpty());
  EXPECT_FALSE(Value(0).IsEmpty());
}

TEST(Value, KeepsTheTypeThatItWasGiven) {
  EXPECT_TRUE(Value(true).Is<bool>());
  EXPECT_TRUE(Value(std::int16_t{1}).Is<std::int16_t>());
  EXPECT_TRUE(Value(1).Is<std::int32_t>());
  EXPECT_TRUE(Value(std::int64_t{1}).Is<std::int64_t>());
  EXPECT_TRUE(Value(1.0F).Is<float>());
  EXPECT_TRUE(Value(1.0).Is<double>());
  EXPECT_TRUE(Value("text").Is<std::string>());
  EXPECT_TRUE(Value(Date(2026, 1, 1)).Is<Date>());
}

TEST(Value, HandsOutItsContentOnlyAsItsOwnType) {
  const Value value(7);
  const auto* const number = value.If<std::int32_t>();
  ASSERT_NE(number, nullptr);
  EXPECT_EQ(*number, 7);
  EXPECT_EQ(value.If<std::int16_t>(), nullptr);
  EXPECT_EQ(value.If<std::string>(), nullptr);
}

TEST(Value, KeepsTextWithEveryCharacter) {
  const std::string text("a\0b\xC3\xA4", 5);
  const Value value(text);
  const auto* const kept = value.If<std::string>();
  ASSERT_NE(kept, nullptr);
  EXPECT_EQ(*kept, text);
}

TEST(Value, SharesARecordSetWithItsCopies) {
  const auto record_set = NewRecordSet();
  const Value value(record_set);
  const Value copy = value;
  EXPECT_TRUE(copy.IsObject());
  const auto* const shared = copy.If<Value::Object>();
  ASSERT_NE(shared, nullptr);
  EXPECT_EQ(*shared, record_set);
  EXPECT_EQ(record_set.use_count(), 3);
}

TEST(Value, IsAnObjectEvenWhenItRefersToNone) {
  const Value value{Value::Object()};
  EXPECT_TRUE(value.IsObject());
  EXPECT_FALSE(value.IsEmpty());
}

TEST(Value, CopiesPlainValues) {
  Value value("before");
  const Value copy = value;
  value = "after";
  EXPECT_EQ(copy, Value("before"));
}

TEST(Value, EqualsOnlyTheSameTypeWithTheSameContent) {
  EXPECT_EQ(Value(), Value());
  EXPECT_EQ(Value(7), Value(7));
  EXPECT_NE(Value(7), Value(8));
  EXPECT_NE(Value(7), Value(std::int16_t{7}));
  EXPECT_NE(Value(7), Value("7"));
  EXPECT_NE(Value(), Value(""));
}

TEST(Value, EqualsAnotherObjectOnlyWhenItIsTheSameOne) {
  const auto record_set = NewRecordSet();
  EXPECT_EQ(Value(record_set), Value(record_set));
  EXPECT_NE(Value(record_set), Value(NewRecordSet()));
}

}  // namespace
}  // namespace ferrowind::platform
