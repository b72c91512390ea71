#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/qt_drop_down_list.h"

namespace ferrowind::qt {
namespace {

class DropDownListTest : public ::testing::Test {
 protected:
  DropDownListTest() {
    for (const char* text : {"Working day", "Holiday", "Celebration", "Holiday point"})
      list_.AddItem(text, list_.Count() + 1);
    box_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&box_));
    box_.setFocus();
  }
  [[nodiscard]] bool IsListOpen() const { return box_.view()->isVisible(); }

  QComboBox box_;
  QtDropDownList list_{box_};
  int choices_ = 0;
  platform::Subscription chosen_ = list_.OnChoice([this] { ++choices_; });
};

TEST_F(DropDownListTest, TakesTheSpaceOfAnItemThatIsTyped) {
  QTest::keyClicks(&box_, "Holiday");
  EXPECT_EQ(list_.Chosen(), 1);
  QTest::keyClicks(&box_, " ");
  EXPECT_FALSE(IsListOpen());
  EXPECT_EQ(list_.Chosen(), 3);
  QTest::keyClicks(&box_, "point");
  EXPECT_FALSE(IsListOpen());
  EXPECT_EQ(list_.Chosen(), 3);
  EXPECT_EQ(choices_, 2);
}

TEST_F(DropDownListTest, TakesTheSpaceWhateverTheCaseOfTheLetters) {
  QTest::keyClicks(&box_, "hOLIDAY P");
  EXPECT_FALSE(IsListOpen());
  EXPECT_EQ(list_.Chosen(), 3);
}

TEST_F(DropDownListTest, StaysOnAnItemThatTheSpaceGoesOnWith) {
  list_.Choose(3);
  QTest::keyClicks(&box_, "Working day");
  EXPECT_FALSE(IsListOpen());
  EXPECT_EQ(list_.Chosen(), 0);
}

TEST_F(DropDownListTest, OpensByASpaceThatFollowsNoLetter) {
  QTest::keyClick(&box_, Qt::Key_Space);
  EXPECT_TRUE(IsListOpen());
  box_.hidePopup();
}

TEST_F(DropDownListTest, OpensByASpaceThatNoItemGoesOnWith) {
  QTest::keyClicks(&box_, "Celebration");
  QTest::keyClick(&box_, Qt::Key_Space);
  EXPECT_TRUE(IsListOpen());
  EXPECT_EQ(list_.Chosen(), 2);
  box_.hidePopup();
}

TEST_F(DropDownListTest, OpensByASpaceAfterAPauseInTyping) {
  QTest::keyClicks(&box_, "Holiday");
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClick(&box_, Qt::Key_Space);
  EXPECT_TRUE(IsListOpen());
  EXPECT_EQ(list_.Chosen(), 1);
  box_.hidePopup();
}

TEST_F(DropDownListTest, StaysOpenWhileAnItemWithASpaceIsTypedIntoTheOpenList) {
  box_.showPopup();
  QTest::keyClicks(box_.view(), "Holiday point");
  EXPECT_TRUE(IsListOpen());
  EXPECT_EQ(box_.view()->currentIndex().row(), 3);
  QTest::keyClick(box_.view(), Qt::Key_Return);
  EXPECT_FALSE(IsListOpen());
  EXPECT_EQ(list_.Chosen(), 3);
}

}  // namespace
}  // namespace ferrowind::qt
