#include "host/admin/guarded_stream.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

std::string Guarded(const std::string& text) {
  std::ostringstream target;
  GuardedStream(target, false) << text;
  return target.str();
}

TEST(GuardedStream, PassesTextsAndLineBreaks) {
  for (const std::string text : {"", "a b\nc\n", "Zürich 祝日 😀", "עברית", "a,b\r\nc,d\r\n", "C:\\n"}) {
    EXPECT_EQ(Guarded(text), text);
  }
}

TEST(GuardedStream, EscapesControlCharacters) {
  EXPECT_EQ(Guarded("\x1b[2J\x07\b\t"), "\\x1b[2J\\x07\\x08\\t");
  EXPECT_EQ(Guarded(std::string("a\0b", 3)), "a\\x00b");
  EXPECT_EQ(Guarded("a\x7f"), "a\\u007f");
}

TEST(GuardedStream, EscapesALoneCarriageReturnThatWouldOverwriteTheLine) {
  EXPECT_EQ(Guarded("a fault\rin order"), "a fault\\rin order");
  EXPECT_EQ(Guarded("a\r"), "a\\r");
  EXPECT_EQ(Guarded("a\r\r\n"), "a\\r\r\n");
}

TEST(GuardedStream, EscapesControlCharactersThatUtf8Encodes) {
  EXPECT_EQ(Guarded("\u0080a\u009b2J\u009f\u00a0"), "\\u0080a\\u009b2J\\u009f\u00a0");
}

TEST(GuardedStream, EscapesWhatTurnsTheDirectionOfWriting) {
  EXPECT_EQ(Guarded("\u202a\u202b\u202c\u202d\u202e"), "\\u202a\\u202b\\u202c\\u202d\\u202e");
  EXPECT_EQ(Guarded("\u2066\u2067\u2068\u2069"), "\\u2066\\u2067\\u2068\\u2069");
  EXPECT_EQ(Guarded("\u2028\u2029"), "\\u2028\\u2029");
}

TEST(GuardedStream, EscapesBytesThatAreNoUtf8) {
  EXPECT_EQ(Guarded("a\x9b\xff"), "a\\x9b\\xff");
  EXPECT_EQ(Guarded("\xc0\x9b"), "\\xc0\\x9b") << "an overlong form";
  EXPECT_EQ(Guarded("\xed\xa0\x80"), "\\xed\\xa0\\x80") << "half of a pair";
  EXPECT_EQ(Guarded("a\xe2\x80"), "a\\xe2\\x80") << "cut off";
}

TEST(GuardedStream, KnowsACharacterThatComesInPieces) {
  std::ostringstream target;
  GuardedStream guarded(target, true);
  for (const char byte : std::string("\u202e\u00fc\r\n")) guarded << byte;
  EXPECT_EQ(target.str(), "\\u202e\u00fc\r\n");
}

TEST(GuardedStream, LetsProgramsHaveTextsAsTheyAreUnlessTheirTargetIsATerminal) {
  std::ostringstream target;
  GuardedStream file(target, false);
  ForPrograms(file) << "\x1b";
  EXPECT_EQ(target.str(), "\x1b");
  target.str("");
  GuardedStream terminal(target, true);
  ForPrograms(terminal) << "\x1b";
  EXPECT_EQ(target.str(), "\\x1b");
  std::ostringstream other;
  EXPECT_EQ(&ForPrograms(other), &other);
  EXPECT_TRUE(IsOnTerminal(terminal));
  EXPECT_FALSE(IsOnTerminal(file));
  EXPECT_FALSE(IsOnTerminal(other));
}

TEST(GuardedStream, FailsWithItsTarget) {
  std::ostringstream target;
  GuardedStream guarded(target, false);
  target.setstate(std::ios::badbit);
  guarded << "a" << std::flush;
  EXPECT_FALSE(guarded);
}

TEST(OneLine, EscapesLineBreaksToo) {
  EXPECT_EQ(OneLine("fault\nThe database is in order.\u009b"), "fault\\nThe database is in order.\\u009b");
  EXPECT_EQ(OneLine("C:\\n"), "C:\\n");
}

}  // namespace
}  // namespace ferrowind::host
