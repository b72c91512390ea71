// The text of a seal, as it is printed, written down and typed again.

#include "ferrowind/adapters/chain/seal.h"

#include <cstddef>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::chain {
namespace {

using ::testing::HasSubstr;
using ::testing::MatchesRegex;

const Seal kSeal = {4211, "0123456789ABCDEFGHJKMNPQRSTVWXYZ"};

TEST(SealText, IsTheNumberOfTheEntryAndGroupsOfFourLetters) {
  EXPECT_THAT(kSeal.Text(), MatchesRegex("4211-0123-4567-89AB-CDEF-GHJK-MNPQ-RSTV-WXYZ-...."));
  EXPECT_EQ(Seal::Of(kSeal.Text()), kSeal);
}

TEST(SealText, IsReadInAnyLettersWithBlanksAndWithLettersForTheDigitsThatTheyLookLike) {
  const std::string check = kSeal.Text().substr(kSeal.Text().size() - 4);
  EXPECT_EQ(Seal::Of("4211 oL23 4567 89ab cdef ghjk mnpq rstv wxyz " + check), kSeal);
  EXPECT_EQ(Seal::Of("4211-Oi23456789ABCDEFGHJKMNPQRSTVWXYZ" + check), kSeal);
}

TEST(SealText, ThatWasMiswrittenIsRefusedByItsCheckGroup) {
  for (std::size_t place = 0; place < kSeal.Text().size(); ++place) {
    std::string text = kSeal.Text();
    if (text[place] == '-') continue;
    text[place] = text[place] == '7' ? '8' : '7';
    EXPECT_THROW((void)Seal::Of(text), platform::Failure) << text;
  }
}

TEST(SealText, ThatIsNoneIsRefusedByWords) {
  for (const char* const text : {"", "4211", "seal", "-1-0123", "4211-0123-4567",
                                 "4211-0123-4567-89AB-CDEF-GHJK-MNPQ-RSTV-WX?Z-0000"}) {
    try {
      (void)Seal::Of(text);
      ADD_FAILURE() << text;
    } catch (const platform::Failure& failure) {
      EXPECT_THAT(failure.Description(),
                  HasSubstr("is no seal. A seal is what \"ferrowindctl seal\" printed"));
    }
  }
}

}  // namespace
}  // namespace ferrowind::chain
