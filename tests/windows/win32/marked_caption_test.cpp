#include "ferrowind/adapters/win32/controls/marked_caption.h"

#include <gtest/gtest.h>

namespace ferrowind::win32 {
namespace {

TEST(MarkedCaptionTest, MarksTheFirstLetterOfTheMnemonic) {
  EXPECT_EQ(MarkedCaption("Save & close", L'c'), L"Save && &close");
  EXPECT_EQ(MarkedCaption("Cancel", L'x'), L"Cancel");
  EXPECT_EQ(MarkedCaption("<<", L'x'), L"<<");
}

TEST(MarkedCaptionTest, PutsItBehindWordsThatNoKeyboardHasKeysFor) {
  EXPECT_EQ(MarkedCaption("保存", L's'), L"保存(&S)");
  EXPECT_EQ(MarkedCaption("保存"), L"保存");
  EXPECT_EQ(MarkedCaption("PDF 保存", L's'), L"PDF 保存");
}

}  // namespace
}  // namespace ferrowind::win32
