#include <QApplication>
#include <QMovie>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/caption_text.h"
#include "ferrowind/adapters/qt/controls/qt_animation.h"
#include "ferrowind/adapters/qt/controls/qt_button.h"
#include "ferrowind/adapters/qt/controls/qt_label.h"
#include "ferrowind/adapters/qt/controls/qt_status_bar.h"
#include "ferrowind/adapters/qt/controls/qt_text_box.h"
#include "ferrowind/adapters/qt/controls/qt_up_down.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CaptionText, MarksTheFirstCharacterOfTheMnemonic) {
  EXPECT_EQ(MarkedCaption("Ok", 'k'), "O&k");
  EXPECT_EQ(MarkedCaption("Cancel", 'c'), "&Cancel");
  EXPECT_EQ(MarkedCaption("Cancel", 'x'), "Cancel");
  EXPECT_EQ(MarkedCaption("Save & close", 'c'), "Save && &close");
  EXPECT_EQ(MarkedCaption(""), "");
}

TEST(CaptionText, PutsTheMnemonicBehindWordsThatNoKeyboardHasKeysFor) {
  EXPECT_EQ(MarkedCaption("保存", 's'), "保存(&S)");
  EXPECT_EQ(MarkedCaption("通貨:", 'c'), "通貨(&C):");
  EXPECT_EQ(MarkedCaption("保存 & 閉じる", 's'), "保存 && 閉じる(&S)");
  EXPECT_EQ(MarkedCaption("保存"), "保存");
  EXPECT_EQ(MarkedCaption("PDF 保存", 's'), "PDF 保存");
  EXPECT_EQ(MarkedCaption("<<", 's'), "<<");
  EXPECT_EQ(MarkedCaption("Übernehmen", QChar(u'ü')), QStringLiteral("&Übernehmen"));
}

TEST(QtButtonTest, KeepsItsCaptionWhateverItsMnemonic) {
  QPushButton widget;
  QtButton button(widget);
  button.SetMnemonic('e');
  button.SetCaption("Except");
  EXPECT_EQ(button.Caption(), "Except");
  EXPECT_EQ(widget.text(), "&Except");
}

TEST(QtLabelTest, ShowsAmpersandsAsTheyAre) {
  QLabel widget;
  QtLabel label(widget);
  label.SetText("Tom & Jerry");
  EXPECT_EQ(widget.text(), "Tom & Jerry");
  QLineEdit buddy;
  widget.setBuddy(&buddy);
  label.SetText("Tom & Jerry");
  EXPECT_EQ(widget.text(), "Tom && Jerry");
}

TEST(QtLabelTest, ShowsMarkupAsPlainText) {
  QLabel widget;
  QtLabel label(widget);
  label.SetText("<b>bold</b>");
  EXPECT_EQ(widget.textFormat(), Qt::PlainText);
}

class TextBoxTest : public ::testing::Test {
 protected:
  QLineEdit line_;
  QtTextBox box_{line_};
  int losses_ = 0;
  platform::Subscription lost_ = box_.OnLostFocus([this] { ++losses_; });

  void LoseFocus(Qt::FocusReason reason) {
    QFocusEvent event(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&line_, &event);
  }
};

TEST_F(TextBoxTest, LosesTheFocusToAnotherControl) {
  LoseFocus(Qt::TabFocusReason);
  EXPECT_EQ(losses_, 1);
}

TEST_F(TextBoxTest, KeepsTheFocusWhileItsMenuOrAnotherWindowIsOpen) {
  LoseFocus(Qt::PopupFocusReason);
  LoseFocus(Qt::ActiveWindowFocusReason);
  EXPECT_EQ(losses_, 0);
}

TEST_F(TextBoxTest, KeepsATextOfTheProgramThatIsLongerThanTheOperatorMayType) {
  box_.SetMaxLength(4);
  box_.SetText("123456");
  EXPECT_EQ(box_.Text(), "123456");
  box_.SetMaxLength(2);
  EXPECT_EQ(box_.Text(), "123456");
  QTest::keyClicks(&line_, "7");
  EXPECT_EQ(box_.Text(), "123456");
}

TEST_F(TextBoxTest, TakesTextWithoutALimit) {
  const std::string long_text(100000, 'x');
  box_.SetText(long_text);
  EXPECT_EQ(box_.Text(), long_text);
}

TEST_F(TextBoxTest, TakesNoLetterThatIsTypedWithAlt) {
  QTest::keyClick(&line_, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(box_.Text(), "");
  QTest::keyClick(&line_, Qt::Key_S);
  QTest::keyClick(&line_, Qt::Key_At, Qt::AltModifier | Qt::GroupSwitchModifier);
  EXPECT_EQ(box_.Text(), "s@");
}

TEST_F(TextBoxTest, RefusesANegativeLimit) { EXPECT_THROW(box_.SetMaxLength(-1), platform::Failure); }

class UpDownTest : public ::testing::Test {
 protected:
  UpDownTest() {
    up_down_.SetRange(1900, 3000, 1);
    up_down_.SetValue(2026);
  }
  void Turn(int angle) {
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&arrows_, &event);
  }
  UpDownArrows arrows_;
  QtUpDown up_down_{arrows_};
};

TEST_F(UpDownTest, StepsByKeys) {
  QTest::keyClick(&arrows_, Qt::Key_Up);
  QTest::keyClick(&arrows_, Qt::Key_Up);
  QTest::keyClick(&arrows_, Qt::Key_Down);
  EXPECT_EQ(up_down_.Value(), 2027);
}

TEST_F(UpDownTest, StepsByTheWheelAndAddsUpItsFractions) {
  Turn(240);
  EXPECT_EQ(up_down_.Value(), 2028);
  Turn(-60);
  EXPECT_EQ(up_down_.Value(), 2028);
  Turn(-60);
  EXPECT_EQ(up_down_.Value(), 2027);
}

TEST_F(UpDownTest, RefusesARangeThatIsNone) {
  EXPECT_THROW(up_down_.SetRange(2, 1, 1), platform::Failure);
  EXPECT_THROW(up_down_.SetRange(1, 2, 0), platform::Failure);
}

TEST(QtStatusBarTest, HasThePanelsOfItsLayout) {
  QStatusBar widget;
  widget.setProperty("panels", 2);
  QtStatusBar bar(widget);
  bar.SetPanelText(2, "second");
  EXPECT_EQ(bar.PanelText(2), "second");
  EXPECT_EQ(bar.PanelText(1), "");
  EXPECT_THROW(bar.SetPanelText(3, ""), platform::Failure);
}

class AnimationTest : public ::testing::Test {
 protected:
  AnimationTest() { label_.resize(22, 22); }
  QLabel label_;
  QtAnimation animation_{label_};
};

TEST_F(AnimationTest, ShowsNothingUnlessItPlays) {
  animation_.Open(FERROWIND_ANIMATION);
  EXPECT_TRUE(label_.pixmap(Qt::ReturnByValue).isNull());
  animation_.Play();
  EXPECT_FALSE(label_.pixmap(Qt::ReturnByValue).isNull());
  animation_.Stop();
  EXPECT_TRUE(label_.pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(AnimationTest, MovesWhileItPlays) {
  animation_.Open(FERROWIND_ANIMATION);
  animation_.Play();
  const QImage first = label_.pixmap(Qt::ReturnByValue).toImage();
  EXPECT_TRUE(QTest::qWaitFor([&] { return label_.pixmap(Qt::ReturnByValue).toImage() != first; }));
}

/// Counts how often a widget paints itself.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints_;
    return false;
  }
  int paints_ = 0;
};

TEST_F(AnimationTest, IsOnTheScreenBeforeAnyEventIsHandled) {
  label_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&label_));
  animation_.Open(FERROWIND_ANIMATION);
  QCoreApplication::processEvents();
  const PaintCount count(label_);
  animation_.Play();
  EXPECT_EQ(count.paints_, 1);
  animation_.Play();
  EXPECT_EQ(count.paints_, 1);
}

TEST_F(AnimationTest, FitsItsLabel) {
  animation_.Open(FERROWIND_ANIMATION);
  animation_.Play();
  EXPECT_EQ(label_.pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize(), QSize(22, 22));
}

TEST_F(AnimationTest, TakesABackslashForASeparatorOfFolders) {
  std::string path = FERROWIND_ANIMATION;
  path.replace(path.rfind('/'), 1, "\\");
  EXPECT_NO_THROW(animation_.Open(path));
}

TEST_F(AnimationTest, RefusesAFileThatIsNoAnimatedImage) {
  EXPECT_THROW(animation_.Open(FERROWIND_ANIMATION_SCRIPT), platform::Failure);
}

TEST_F(AnimationTest, KeepsTheOldImageWhenANewOneCannotBeOpened) {
  animation_.Open(FERROWIND_ANIMATION);
  EXPECT_THROW(animation_.Open("/nowhere"), platform::Failure);
  EXPECT_NO_THROW(animation_.Play());
}

TEST(RunGuardedTest, KeepsWhateverAHandlerThrowsOutOfTheEventLoop) {
  QPushButton widget;
  QtButton button(widget);
  std::vector<int> calls;
  const auto failing = button.OnClick([&] {
    calls.push_back(1);
    throw platform::Failure(5, "broken");
  });
  QTest::mouseClick(&widget, Qt::LeftButton);
  RunGuarded("x", [] { throw std::runtime_error("broken"); });
  RunGuarded("x", [] { throw 1; });
  EXPECT_THAT(calls, ElementsAre(1));
}

TEST(MuteTest, EndsTheEventsOfAControl) {
  QPushButton widget;
  QtButton button(widget);
  std::vector<int> calls;
  const auto clicked = button.OnClick([&] { calls.push_back(1); });
  button.Mute();
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_THAT(calls, IsEmpty());
}

}  // namespace
}  // namespace ferrowind::qt
