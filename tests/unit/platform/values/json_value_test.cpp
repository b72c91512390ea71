#include "ferrowind/platform/values/json_value.h"

#include <string>

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

TEST(JsonValue, ReadsValuesOfEveryKind) {
  const auto json = ReadJson(
      " {\"a\" : [1, -2.5e+3, true, false, null], "
      "\"b\":\"x\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e9\\ud83d\\ude00\"} ");
  ASSERT_TRUE(json);
  ASSERT_EQ(json->kind, JsonValue::Kind::kObject);
  EXPECT_EQ(json->names, (std::vector<std::string>{"a", "b"}));
  ASSERT_EQ(json->items.size(), 2U);
  const auto& list = json->items[0];
  ASSERT_EQ(list.kind, JsonValue::Kind::kList);
  ASSERT_EQ(list.items.size(), 5U);
  EXPECT_EQ(list.items[0].text, "1");
  EXPECT_EQ(list.items[1].text, "-2.5e+3");
  EXPECT_EQ(list.items[2].kind, JsonValue::Kind::kTruth);
  EXPECT_EQ(list.items[3].text, "false");
  EXPECT_EQ(list.items[4].kind, JsonValue::Kind::kNull);
  EXPECT_EQ(json->items[1].text, "x\"\\/\b\f\n\r\t\u00e9\U0001F600");
}

TEST(JsonValue, ReadsNothingElse) {
  for (const char* text : {"",
                           " ",
                           "[",
                           "]",
                           "[1,]",
                           "[,1]",
                           "{\"a\"}",
                           "{\"a\":}",
                           "{a:1}",
                           "{\"a\":1,}",
                           "01",
                           "1.",
                           ".5",
                           "-",
                           "1e",
                           "+1",
                           "nul",
                           "True",
                           "'a'",
                           "\"a",
                           "\"\\x\"",
                           "\"\\u12\"",
                           "\"\n\"",
                           "\"\\u0000\"",
                           "\"\\ud800\"",
                           "\"\\udc00\"",
                           "\"\\ud800\\u0041\"",
                           "1 2",
                           "[1]]",
                           "NaN"}) {
    EXPECT_FALSE(ReadJson(text)) << text;
  }
}

TEST(JsonValue, KnowsWhereItBeganAndHowFarTheTextCouldBeRead) {
  const JsonReading whole = ReadJsonAndPlace(" [1, {\"a\": true}]");
  ASSERT_TRUE(whole.value);
  EXPECT_EQ(whole.value->place, 1U);
  EXPECT_EQ(whole.value->items[1].place, 5U);
  EXPECT_EQ(whole.value->items[1].items[0].place, 11U);
  const JsonReading broken = ReadJsonAndPlace("[1, 2,]");
  EXPECT_FALSE(broken.value);
  EXPECT_EQ(broken.place, 6U);
}

TEST(JsonValue, GoesAHundredDeepAtMost) {
  EXPECT_TRUE(ReadJson(std::string(100, '[') + std::string(100, ']')));
  EXPECT_FALSE(ReadJson(std::string(200, '[') + std::string(200, ']')));
}

}  // namespace
}  // namespace ferrowind::platform
