#include "ferrowind/platform/values/utf8_validation.h"

#include <string>

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

TEST(Utf8Validation, AcceptsEveryLengthAtItsLimits) {
  for (const char* text :
       {"", "a", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
        "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "a\xC3\xA4z"}) {
    EXPECT_TRUE(IsWellFormedUtf8(text)) << text;
  }
  EXPECT_TRUE(IsWellFormedUtf8(std::string("a\0b", 3)));
}

TEST(Utf8Validation, RefusesStrayAndMissingContinuationBytes) {
  for (const char* text : {"\x80", "a\xBF", "\xC3", "\xC3z", "\xE2\x82", "\xE2\x82z", "\xE2z\x82",
                           "\xF0\x9F\x98", "\xF0\x9F\x98z", "\xC3\xA4\xA4"}) {
    EXPECT_FALSE(IsWellFormedUtf8(text)) << text;
  }
}

TEST(Utf8Validation, RefusesOverlongForms) {
  for (const char* text : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF"}) {
    EXPECT_FALSE(IsWellFormedUtf8(text)) << text;
  }
}

TEST(Utf8Validation, RefusesSurrogatesAndWhatLiesBeyondUnicode) {
  for (const char* text :
       {"\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFE", "\xFF"}) {
    EXPECT_FALSE(IsWellFormedUtf8(text)) << text;
  }
}

}  // namespace
}  // namespace ferrowind::platform
