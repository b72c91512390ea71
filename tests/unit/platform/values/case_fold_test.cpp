#include "ferrowind/platform/values/case_fold.h"

#include <array>
#include <compare>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

TEST(FoldCase, FoldsTheLettersOfAsciiAndLeavesTheRest) {
  EXPECT_EQ(FoldCase("FullDate_9 [@Z] `{}"), "fulldate_9 [@z] `{}");
  EXPECT_EQ(FoldCase(""), "");
}

TEST(FoldCase, FoldsLatinGreekAndCyrillicLetters) {
  const std::vector<std::pair<std::string, std::string>> pairs = {
      {"ÀÖØÞ", "àöøþ"},
      {"ĀŁŃŐŒŠŸŽ", "āłńőœšÿž"},
      {"ƁƏƠƯǍǞǴȘȚɎ", "ɓəơưǎǟǵșțɏ"},
      {"ΆΈΑΣΩΪ", "άέασωϊ"},
      {"ЀЁАЯѠҐӀӁӘԮ", "ѐёаяѡґӏӂәԯ"},
  };
  for (const auto& [capitals, small] : pairs) {
    EXPECT_EQ(FoldCase(capitals), small);
    EXPECT_EQ(FoldCase(small), small);
  }
}

TEST(FoldCase, BringsAllFormsOfALetterTogether) {
  EXPECT_EQ(FoldCase("Σσς"), "σσσ");
  EXPECT_EQ(FoldCase("µΜμ"), "μμμ");
  EXPECT_EQ(FoldCase("ǄǅǆSſs"), "ǆǆǆsss");
}

TEST(FoldCase, FoldsALetterToOneOfAnotherLength) {
  EXPECT_EQ(FoldCase("ſ"), "s");
  EXPECT_EQ(FoldCase("ȺȾ"), "ⱥⱦ");
}

TEST(FoldCase, LeavesLettersThatHaveNoOneToOneCounterpart) {
  EXPECT_EQ(FoldCase("ßİıĸ"), "ßİıĸ");
  EXPECT_EQ(FoldCase("×÷"), "×÷");
}

TEST(FoldCase, LeavesLettersBeyondItsScripts) { EXPECT_EQ(FoldCase("ԱႠＡ日𐐀"), "ԱႠＡ日𐐀"); }

TEST(FoldCase, LeavesBytesThatAreNoUtf8) {
  for (const std::string bytes : {"\xC3", "\x84", "\xFF\xFE", "\xC3 \x84", "\xC0\x80", "\xE4\xBD"}) {
    EXPECT_EQ(FoldCase(bytes), bytes);
  }
  EXPECT_EQ(FoldCase("\xC3\xC3\x84"), "\xC3\xC3\xA4");
  EXPECT_EQ(FoldCase(std::string("A\0B", 3)), std::string("a\0b", 3));
}

TEST(FoldCase, ChangesNothingTheSecondTime) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string text = {static_cast<char>(first), static_cast<char>(second)};
      const std::string folded = FoldCase(text);
      ASSERT_EQ(FoldCase(folded), folded) << first << ' ' << second;
    }
  }
}

TEST(CompareIgnoringCase, OrdersAsTheFoldedTextsAreOrdered) {
  const std::array<std::string, 12> texts = {"",  "a", "A",    "aa",       "Ab", "b",
                                             "ä", "Ä", "\xC3", "\xC3\xC3", "Ⱥz", "\xE2\xB1"};
  for (const auto& left : texts) {
    for (const auto& right : texts) {
      EXPECT_EQ(CompareIgnoringCase(left, right), FoldCase(left) <=> FoldCase(right))
          << left << " | " << right;
    }
  }
}

TEST(CompareIgnoringCase, ReadsOnBehindANul) {
  EXPECT_EQ(CompareIgnoringCase(std::string_view("a\0B", 3), std::string_view("A\0b", 3)),
            std::strong_ordering::equal);
  EXPECT_EQ(CompareIgnoringCase(std::string_view("a\0b", 3), "a"), std::strong_ordering::greater);
}

TEST(FindIgnoringCase, FindsTheFirstOfEqualTexts) {
  const std::vector<std::string> texts = {"TID1", "Del", "DEL"};
  EXPECT_EQ(FindIgnoringCase(texts, "del"), 1U);
  EXPECT_EQ(FindIgnoringCase(texts, "tid1"), 0U);
  EXPECT_EQ(FindIgnoringCase(texts, "De"), std::nullopt);
  EXPECT_EQ(FindIgnoringCase({}, "Del"), std::nullopt);
}

}  // namespace
}  // namespace ferrowind::platform
