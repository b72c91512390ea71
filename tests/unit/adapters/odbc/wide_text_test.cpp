#include "ferrowind/adapters/odbc/wide_text.h"

#include <span>
#include <string>

#include <gtest/gtest.h>

namespace ferrowind::odbc {
namespace {

TEST(WideText, HasAUnitForEachCharacterOfTheFirstPlaneAndTwoForTheOthers) {
  EXPECT_EQ(ToWide("a\u00E4\u20AC"), (WideText{'a', 0xE4, 0x20AC, 0}));
  EXPECT_EQ(ToWide("\U0001F600\U0010FFFF"), (WideText{0xD83D, 0xDE00, 0xDBFF, 0xDFFF, 0}));
  EXPECT_EQ(ToWide(""), WideText{0});
}

TEST(WideText, ComesBackAsItWas) {
  const std::string text = "\u0001 a\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF";
  const WideText wide = ToWide(text);
  EXPECT_EQ(FromWide(std::span(wide).first(wide.size() - 1)), text);
}

TEST(WideText, TakesNoHalfOfAPair) {
  for (const WideText& text : {WideText{0xD83D}, WideText{0xDE00}, WideText{0xD83D, 'a'},
                               WideText{0xDE00, 0xD83D}, WideText{0xD83D, 0xD83D}}) {
    EXPECT_EQ(FromWide(text), std::nullopt);
  }
}

}  // namespace
}  // namespace ferrowind::odbc
