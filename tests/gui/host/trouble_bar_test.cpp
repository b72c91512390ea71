// The bar of a trouble and the footer that it is in: room, long texts, keyboard.
#include "host/desktop/trouble_bar.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include "host/desktop/footer_panel.h"
#include "tests/gui/windows/operator_hands.h"

namespace ferrowind::gui {
namespace {

using host::FooterPanel;
using host::ScrolledText;
using host::TroubleBar;

QString LongText() { return QStringLiteral("A rule with a rather long name, ").repeated(60); }

/// A window with a bar at its bottom.
class TroubleBarTest : public ::testing::Test {
 protected:
  TroubleBarTest() {
    auto* const layout = new QVBoxLayout(&window_);
    layout->addWidget(field_);
    layout->addStretch();
    layout->addWidget(bar_);
    window_.resize(800, 600);
    window_.show();
    Activate(window_);
    field_->setFocus();
  }

  [[nodiscard]] ScrolledText& Text() const { return *bar_->findChild<ScrolledText*>(); }

  QWidget window_;
  QLineEdit* field_ = new QLineEdit;
  TroubleBar* bar_ = new TroubleBar;
};

TEST_F(TroubleBarTest, HidesWithoutATextAndTakesNoFocusWithOne) {
  EXPECT_FALSE(bar_->isVisible());
  bar_->Tell(QStringLiteral("It is down"));
  EXPECT_TRUE(bar_->isVisible());
  EXPECT_TRUE(field_->hasFocus());
  bar_->Tell({});
  EXPECT_FALSE(bar_->isVisible());
}

TEST_F(TroubleBarTest, ALongTextScrollsInAFewLinesAndTheTabKeyReachesIt) {
  bar_->Tell(QStringLiteral("Short"));
  QCoreApplication::processEvents();
  EXPECT_EQ(Text().focusPolicy(), Qt::NoFocus);
  const int short_height = bar_->height();
  bar_->Tell(LongText());
  EXPECT_TRUE(QTest::qWaitFor([&] { return bar_->height() > short_height; }));
  EXPECT_LT(bar_->height(), window_.height() / 4);
  EXPECT_GT(Text().verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(Text().focusPolicy(), Qt::TabFocus);
}

TEST_F(TroubleBarTest, IsDismissedByShiftEscAndByItsButtonWithTheSpaceKey) {
  QSignalSpy dismissed(bar_, &TroubleBar::Dismissed);
  bar_->Tell(QStringLiteral("It is down"));
  Press(*field_, Qt::Key_Escape, Qt::ShiftModifier);
  EXPECT_EQ(dismissed.count(), 1);
  auto& button = Find<QToolButton>(window_, "dismissTrouble");
  TabTo(button);
  Press(button, Qt::Key_Space);
  EXPECT_EQ(dismissed.count(), 2);
}

TEST_F(TroubleBarTest, ShowsMarkupAsItIs) {
  bar_->Tell(QStringLiteral("<b>No</b>"));
  EXPECT_EQ(Find<QLabel>(window_, "troubleText").textFormat(), Qt::PlainText);
}

TEST(FooterPanelTest, FitsALongTextIntoAQuarterOfTheWindow) {
  QWidget window;
  window.resize(800, 400);
  FooterPanel panel(&window);
  panel.Tell(LongText(), LongText());
  panel.FitInto(window.size());
  EXPECT_TRUE(panel.HasRoomIn({800, 400}));
  EXPECT_FALSE(panel.HasRoomIn({800, 100}));
}

TEST(FooterPanelTest, TakesNoRoomForAnEmptyText) {
  QWidget window;
  window.resize(800, 600);
  FooterPanel panel(&window);
  panel.Tell({}, QStringLiteral("Done"));
  const int note_alone = panel.heightForWidth(800);
  panel.Tell(QStringLiteral("It is down"), QStringLiteral("Done"));
  EXPECT_GT(panel.heightForWidth(800), note_alone);
}

}  // namespace
}  // namespace ferrowind::gui
