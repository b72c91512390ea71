#include "ferrowind/adapters/operator_services/setting_text.h"

#include <limits>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::Value;

TEST(SettingText, BringsEveryTypeBackAsItWas) {
  for (const Value& value : {Value(true), Value(false), Value(std::int16_t{-7}), Value(std::int32_t{123456}),
                             Value(std::numeric_limits<std::int64_t>::min()), Value(1200.5F), Value(0.1F),
                             Value(1.0 / 3), Value(Date(2026, 7, 4)), Value("plain text"), Value(""),
                             Value(std::string("a\0b", 3)), Value("Single:12"), Value("Text:Text:")}) {
    EXPECT_EQ(SettingValue(SettingText(value)), value) << SettingText(value);
  }
}

TEST(SettingText, KeepsTextReadable) {
  EXPECT_EQ(SettingText("plain text"), "plain text");
  EXPECT_EQ(SettingText(1200.0F), "Single:1200");
}

TEST(SettingText, TakesWhatDoesNotFitItsTypeForText) {
  for (const char* text : {"Single:wide", "Single:", "Long:12.5", "Long:99999999999", "Integer:1e3",
                           "Boolean:maybe", "Date:2026-02-30", "Single:1,5", "Unknown:1"}) {
    EXPECT_EQ(SettingValue(text), Value(text));
  }
}

TEST(SettingText, RefusesAnObject) {
  EXPECT_THROW(static_cast<void>(SettingText(Value(Value::Object()))), platform::Failure);
}

}  // namespace
}  // namespace ferrowind
