#include "host/admin/terminal_text.h"

#include <gtest/gtest.h>

namespace ferrowind::host {
namespace {

TEST(TerminalText, CountsColumnsNotBytes) {
  EXPECT_EQ(ForTerminal("Zürich", 60).width, 6U);
  EXPECT_EQ(ForTerminal("日本", 60).width, 4U);
  EXPECT_EQ(ForTerminal("e\u0301", 60).width, 1U);
  EXPECT_EQ(ForTerminal("", 60).width, 0U);
}

TEST(TerminalText, EscapesWhatWouldBreakTheLineOrDriveTheTerminal) {
  EXPECT_EQ(ForTerminal("a\nb\tc\x1b[31m", 60).text, "a\\nb\\tc\\x1b[31m");
  EXPECT_EQ(ForTerminal(std::string("a\0b", 3), 60).text, "a\\x00b");
  EXPECT_EQ(ForTerminal("a\\nb", 60).text, "a\\\\nb");
}

TEST(TerminalText, EscapesWhatIsUnsafeAndTakesNoColumn) {
  const TerminalText shown = ForTerminal("a\u202eb\u009bc\x7f", 60);
  EXPECT_EQ(shown.text, "a\\u202eb\\u009bc\\u007f");
  EXPECT_EQ(shown.width, 21U);
}

TEST(TerminalText, EscapesBytesThatAreNoUtf8) {
  const TerminalText shown = ForTerminal("a\xff\xc3", 60);
  EXPECT_EQ(shown.text, "a\\xff\\xc3");
  EXPECT_EQ(shown.width, 9U);
}

TEST(TerminalText, CutsALongTextWithAnEllipsis) {
  EXPECT_EQ(ForTerminal("abcdef", 6).text, "abcdef");
  const TerminalText cut = ForTerminal("abcdefg", 6);
  EXPECT_EQ(cut.text, "abcde…");
  EXPECT_EQ(cut.width, 6U);
}

TEST(TerminalText, CutsNoWideCharacterInHalf) {
  const TerminalText cut = ForTerminal("日本銀行", 5);
  EXPECT_EQ(cut.text, "日本…");
  EXPECT_EQ(cut.width, 5U);
  EXPECT_EQ(ForTerminal("日本銀行", 4).text, "日…");
}

}  // namespace
}  // namespace ferrowind::host
