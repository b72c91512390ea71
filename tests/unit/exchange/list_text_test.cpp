#include "ferrowind/exchange/list_text.h"

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/text_limits.h"

#include "tests/unit/exchange/lists.h"

namespace ferrowind::exchange {
namespace {

using namespace std::string_literals;

TEST(ListText, IsUtf8WithAMarkOrWithout) {
  EXPECT_EQ(TextOfList("J\xC3\xBCl"), "J\xC3\xBCl");
  EXPECT_EQ(TextOfList("\xEF\xBB\xBFJ\xC3\xBCl"), "J\xC3\xBCl");
  EXPECT_EQ(TextOfList(""), "");
}

TEST(ListText, IsReadFromUtf16WithAMark) {
  EXPECT_EQ(TextOfList("\xFF\xFEJ\0\xFC\0l\0\n\0"s), "J\xC3\xBCl\n");
  EXPECT_EQ(TextOfList("\xFE\xFF\0J\0\xFC\0l"s), "J\xC3\xBCl");
  EXPECT_EQ(TextOfList("\xFF\xFE\x3D\xD8\x00\xDE\xAC\x20"s), "\xF0\x9F\x98\x80\xE2\x82\xAC");
  EXPECT_EQ(RefusalOf([] { return TextOfList("\xFF\xFE\n\0a"s); }),
            "line 2: the text is UTF-16 and ends within a character");
  EXPECT_EQ(RefusalOf([] { return TextOfList("\xFF\xFE\x3D\xD8x\0"s); }),
            "line 1: the text is UTF-16 with half a character in it");
  EXPECT_EQ(RefusalOf([] { return TextOfList("\xFF\xFE\x00\xDE"s); }),
            "line 1: the text is UTF-16 with half a character in it");
}

TEST(ListText, OfAnotherEncodingIsToldWithItsLine) {
  EXPECT_EQ(RefusalOf([] { return TextOfList("2027-01-01 a\n2027-12-25 J\xFCl\n"); }),
            "line 2: this is not UTF-8, but perhaps Latin-1 or Windows-1252; save it as UTF-8");
  EXPECT_EQ(RefusalOf([] {
              return TextOfList(
                  "2\0"
                  "0\0"s);
            }),
            "line 1: there is a NUL character, as in a file that is no text, or is UTF-16 without a byte "
            "order mark; "
            "save it as UTF-8");
}

TEST(ListText, HasALimit) {
  EXPECT_EQ(TextOfList(std::string(kLongestList, 'a')).size(), kLongestList);
  EXPECT_EQ(RefusalOf([] { return TextOfList(std::string(kLongestList + 1, 'a')); }),
            "a list may have 4 MB at most, and this one is longer");
}

TEST(ListText, KeepsNamesTidy) {
  EXPECT_EQ(TidyName("  New\r\n Year's\tDay "), "New Year's Day");
  EXPECT_EQ(TidyName(" \n"), "");
  std::string longest;
  for (std::size_t i = 0; i < platform::kLongestName; ++i) longest += "\xC3\xBC";
  EXPECT_EQ(FaultOfName(longest), "");
  EXPECT_NE(FaultOfName(longest + "a").find("has 201 characters; it may have 200 at most"),
            std::string::npos);
  EXPECT_EQ(FaultOfName("a\x1B[1m"), "the name \"a [1m\" has a control character in it");
}

}  // namespace
}  // namespace ferrowind::exchange
