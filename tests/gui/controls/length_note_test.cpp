// What a field tells while its text is longer than can be stored.

#include "ferrowind/adapters/qt/controls/length_note.h"

#include <QAction>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWidget>
#include <string>

#include <gtest/gtest.h>

namespace ferrowind::qt {
namespace {

class LengthNoteTest : public ::testing::Test {
 protected:
  LengthNoteTest() {
    window_.setLocale(QLocale(QLocale::English));
    auto* const layout = new QVBoxLayout(&window_);
    line_ = new QLineEdit;
    line_->setAccessibleDescription("Of the rule");
    layout->addWidget(line_);
    new LengthNote(*line_, 5);
    window_.show();
    line_->setFocus();
    QTest::qWait(0);
  }
  ~LengthNoteTest() override {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
  }

  [[nodiscard]] bool HasMark() const {
    for (const QAction* const action : line_->actions()) {
      if (action->isVisible()) return true;
    }
    return false;
  }
  [[nodiscard]] std::string Description() const { return line_->accessibleDescription().toStdString(); }

  QWidget window_;
  QLineEdit* line_ = nullptr;
};

constexpr const char* kTold = "This text has 6 characters; 5 at most can be stored.";

TEST_F(LengthNoteTest, SaysNothingOfATextThatCanBeStored) {
  QTest::keyClicks(line_, "12345");
  EXPECT_FALSE(HasMark());
  EXPECT_EQ(Description(), "Of the rule");
}

TEST_F(LengthNoteTest, TellsWhileOneTypesAndCutsNothing) {
  QTest::keyClicks(line_, "123456");
  EXPECT_EQ(line_->text(), "123456");
  EXPECT_TRUE(HasMark());
  EXPECT_EQ(Description(), kTold);
  EXPECT_EQ(QToolTip::text().toStdString(), kTold);
  QTest::keyClick(line_, Qt::Key_Backspace);
  EXPECT_FALSE(HasMark());
  EXPECT_EQ(Description(), "Of the rule");
}

TEST_F(LengthNoteTest, CountsCodePointsWithoutOuterBlanks) {
  line_->setText(QString::fromUtf8("  é祝\U0001F389ab  "));
  EXPECT_FALSE(HasMark());
  line_->setText(QString::fromUtf8("\U0001F389\U0001F389\U0001F389\U0001F389\U0001F389x"));
  EXPECT_EQ(Description(), kTold);
}

TEST_F(LengthNoteTest, OpensNoTipOverAFieldThatAnotherOneIsTypedInto) {
  auto* const other = new QLineEdit;
  window_.layout()->addWidget(other);
  other->show();
  other->setFocus();
  line_->setText("123456");
  EXPECT_TRUE(HasMark());
  EXPECT_FALSE(QToolTip::isVisible());
}

}  // namespace
}  // namespace ferrowind::qt
