#include "ferrowind/views/planning/text_index.h"

#include <random>
#include <sstream>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TextIndex IndexOf(const std::vector<std::string>& texts) {
  TextIndex index;
  for (const auto& text : texts) index.Add(text);
  return index;
}

/// The numbers of the texts that have it.
std::vector<std::size_t> Found(TextIndex& index, const std::string& typed) {
  std::vector<std::size_t> numbers;
  const auto& found = index.Having(typed);
  for (std::size_t number = 0; number < found.size(); ++number) {
    if (found[number]) numbers.push_back(number);
  }
  return numbers;
}

bool HasAllWords(const std::string& text, const std::string& typed) {
  std::istringstream words(platform::FoldCase(typed));
  for (std::string word; words >> word;) {
    if (platform::FoldCase(text).find(word) == std::string::npos) return false;
  }
  return true;
}

TEST(TextIndex, FindsWhatHasTheTextInItWhateverTheLetterCase) {
  TextIndex index = IndexOf({"Good Friday", "Easter Monday", "GOOD riddance", "Tag der Arbeit, ÄRGER"});
  EXPECT_THAT(Found(index, "good"), ElementsAre(0, 2));
  EXPECT_THAT(Found(index, "DAY"), ElementsAre(0, 1));
  EXPECT_THAT(Found(index, "ärg"), ElementsAre(3));
  EXPECT_THAT(Found(index, "Christmas"), IsEmpty());
}

TEST(TextIndex, FindsEverythingForNothing) {
  TextIndex index = IndexOf({"a", "", "b"});
  EXPECT_THAT(Found(index, ""), ElementsAre(0, 1, 2));
  EXPECT_THAT(Found(index, "   "), ElementsAre(0, 1, 2));
  EXPECT_EQ(TextIndex().Having("x").size(), 0U);
}

TEST(TextIndex, WantsEveryWordInAnyOrder) {
  TextIndex index = IndexOf({"Good Friday", "Friday", "A good day on a Friday", "Good day"});
  EXPECT_THAT(Found(index, "fri good"), ElementsAre(0, 2));
}

TEST(TextIndex, FindsNothingThatReachesFromOneTextIntoTheNext) {
  TextIndex index = IndexOf({"ab", "cd", "a\nb"});
  EXPECT_THAT(Found(index, "bc"), IsEmpty());
  EXPECT_THAT(Found(index, "b\nc"), IsEmpty());
  EXPECT_THAT(Found(index, "a\nb"), ElementsAre(0, 2)) << "a break is a blank between words";
}

TEST(TextIndex, TakesTextsBetweenSearches) {
  TextIndex index = IndexOf({"one"});
  EXPECT_THAT(Found(index, "two"), IsEmpty());
  index.Add("two");
  EXPECT_THAT(Found(index, "two"), ElementsAre(1));
  EXPECT_THAT(Found(index, ""), ElementsAre(0, 1));
}

/// However the texts are searched on, the answer is that of a search of each of them.
TEST(TextIndex, FindsTheSameWhateverWasTypedBefore) {
  std::mt19937 random(20280414);
  const auto letters = [&](std::size_t most) {
    std::string text(random() % (most + 1), ' ');
    for (char& letter : text) letter = "abcA "[random() % 5];
    return text;
  };
  std::vector<std::string> texts;
  for (int i = 0; i < 60; ++i) texts.push_back(letters(8));
  TextIndex index = IndexOf(texts);
  std::string typed;
  for (int step = 0; step < 2000; ++step) {
    if (random() % 4 == 0 && !typed.empty()) {
      typed.pop_back();
    } else if (random() % 9 == 0) {
      typed = letters(3);
    } else {
      typed += letters(1);
    }
    std::vector<std::size_t> expected;
    for (std::size_t number = 0; number < texts.size(); ++number) {
      if (HasAllWords(texts[number], typed)) expected.push_back(number);
    }
    ASSERT_EQ(Found(index, typed), expected) << "for \"" << typed << "\"";
  }
}

}  // namespace
}  // namespace ferrowind
