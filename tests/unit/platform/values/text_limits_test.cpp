#include "ferrowind/platform/values/text_limits.h"

#include <string>

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

TEST(CharacterCount, CountsCodePointsAndNotBytes) {
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("abc"), 3U);
  EXPECT_EQ(CharacterCount("é祝\U0001F389"), 3U);
  // A letter and the accent on it are two.
  EXPECT_EQ(CharacterCount("e\u0301"), 2U);
}

TEST(CharacterCount, DoesNotEndAtACharacterNul) { EXPECT_EQ(CharacterCount(std::string("a\0b", 3)), 3U); }

TEST(CharacterCount, HasAnAnswerForWhatIsNoUtf8) {
  EXPECT_EQ(CharacterCount("\xFF\xFE"), 2U);
  EXPECT_EQ(CharacterCount("\x80\x80"), 0U);
}

}  // namespace
}  // namespace ferrowind::platform
