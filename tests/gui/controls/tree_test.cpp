#include <QAccessible>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/qt_tree.h"

namespace ferrowind::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeTest : public ::testing::Test {
 protected:
  TreeTest() {
    view_.setObjectName("tvCalendar");
    view_.resize(200, 400);
    for (const char* ccy : {"CHF", "EUR", "GBP", "USD", "USN"}) {
      tree_.AddRoot({ccy, ccy, "Currency"});
      for (const char* year : {"2026", "2027"})
        tree_.AddChild(ccy, {std::string(ccy) + year, year, "Calendar"});
    }
    view_.show();
    view_.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view_));
  }

  [[nodiscard]] QPoint PlaceOf(const std::string& key) {
    return view_.visualRect(static_cast<TreeModel*>(view_.model())->Find(key)).center();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view_, key, modifiers); }
  void Click(const std::string& key, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(view_.viewport(), button, modifiers, PlaceOf(key));
  }

  TreeView view_;
  QtTree tree_{view_};
  std::vector<std::string> clicks_;
  platform::Subscription clicked_ =
      tree_.OnNodeClick([this](const std::string& key) { clicks_.push_back(key); });
};

TEST_F(TreeTest, ShowsTheNodeThatWasSelectedBeforeItWasShown) {
  view_.hide();
  view_.resize(200, 60);
  tree_.Select("USN2027");
  view_.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&view_));
  EXPECT_TRUE(view_.viewport()->rect().contains(PlaceOf("USN2027")));
}

TEST_F(TreeTest, KeepsTheSelectedNodeInSightWhenItsRoomShrinks) {
  tree_.Select("USN2027");
  ASSERT_GT(PlaceOf("USN2027").y(), 60);
  view_.resize(200, 60);
  QCoreApplication::processEvents();
  EXPECT_TRUE(view_.viewport()->rect().contains(PlaceOf("USN2027")));
}

TEST_F(TreeTest, ClicksTheNodeThatAKeyMovesTheSelectionTo) {
  tree_.Select("EUR");
  Press(Qt::Key_Down);
  EXPECT_EQ(tree_.Selected(), "GBP");
  Press(Qt::Key_Home);
  Press(Qt::Key_End);
  EXPECT_THAT(clicks_, ElementsAre("GBP", "CHF", "USN"));
}

TEST_F(TreeTest, ClicksNothingWhenAKeyLeavesTheSelectionWhereItIs) {
  tree_.Select("CHF");
  Press(Qt::Key_Up);
  Press(Qt::Key_Right);
  Press(Qt::Key_Left);
  EXPECT_THAT(clicks_, IsEmpty());
}

TEST_F(TreeTest, FindsANodeByTheLettersTyped) {
  tree_.Select("CHF");
  QTest::keyClicks(&view_, "us");
  EXPECT_EQ(tree_.Selected(), "USD");
  QTest::keyClicks(&view_, "n");
  EXPECT_EQ(tree_.Selected(), "USN");
  EXPECT_THAT(clicks_, ElementsAre("USD", "USN"));
}

TEST_F(TreeTest, ExpandsAndCollapsesByKeys) {
  tree_.Select("EUR");
  Press(Qt::Key_Right);
  EXPECT_TRUE(tree_.Expanded("EUR"));
  Press(Qt::Key_Right);
  EXPECT_EQ(tree_.Selected(), "EUR2026");
  Press(Qt::Key_Left);
  Press(Qt::Key_Left);
  EXPECT_FALSE(tree_.Expanded("EUR"));
  EXPECT_THAT(clicks_, ElementsAre("EUR2026", "EUR"));
}

TEST_F(TreeTest, ClicksTheSameNodeAgain) {
  Click("GBP");
  Click("GBP");
  EXPECT_THAT(clicks_, ElementsAre("GBP", "GBP"));
}

TEST_F(TreeTest, SelectsAndClicksByTheRightButtonToo) {
  Click("GBP", Qt::RightButton);
  EXPECT_EQ(tree_.Selected(), "GBP");
  EXPECT_THAT(clicks_, ElementsAre("GBP"));
}

TEST_F(TreeTest, KeepsANodeSelectedWhenItIsClickedWithCtrl) {
  Click("GBP");
  Click("GBP", Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(tree_.Selected(), "GBP");
}

TEST_F(TreeTest, KeepsTheSelectionWhenTheEmptySpaceIsClicked) {
  tree_.Select("GBP");
  QTest::mouseClick(view_.viewport(), Qt::LeftButton, {}, QPoint(100, 390));
  EXPECT_EQ(tree_.Selected(), "GBP");
  EXPECT_THAT(clicks_, IsEmpty());
}

TEST_F(TreeTest, ClicksTheNodeThatAnAssistiveToolSelects) {
  tree_.Select("CHF");
  tree_.SetExpanded("EUR", true);
  QAccessibleTableInterface* const rows = QAccessible::queryAccessibleInterface(&view_)->tableInterface();
  ASSERT_NE(rows, nullptr);
  ASSERT_EQ(rows->cellAt(2, 0)->text(QAccessible::Name), QStringLiteral("2026"));
  EXPECT_TRUE(rows->selectRow(2));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !clicks_.empty(); }));
  EXPECT_THAT(clicks_, ElementsAre("EUR2026"));
  EXPECT_EQ(tree_.Selected(), "EUR2026");
  // Keys go on from there.
  Press(Qt::Key_Down);
  EXPECT_THAT(clicks_, ElementsAre("EUR2026", "EUR2027"));
}

TEST_F(TreeTest, ClicksTheNodeThatAnAssistiveToolSelectsWhenAMouseButtonWasReleasedElsewhere) {
  tree_.SetExpanded("EUR", true);
  QTest::mousePress(view_.viewport(), Qt::LeftButton, {}, PlaceOf("CHF"));
  view_.hide();
  view_.show();
  ASSERT_THAT(clicks_, IsEmpty());
  QAccessibleTableInterface* const rows = QAccessible::queryAccessibleInterface(&view_)->tableInterface();
  EXPECT_TRUE(rows->selectRow(2));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !clicks_.empty(); }, 2000));
  EXPECT_THAT(clicks_, ElementsAre("EUR2026"));
}

TEST_F(TreeTest, ClicksOnceWhenTheSelectionIsDraggedOverNodes) {
  QTest::mousePress(view_.viewport(), Qt::LeftButton, {}, PlaceOf("CHF"));
  QTest::mouseMove(view_.viewport(), PlaceOf("EUR"));
  QTest::mouseMove(view_.viewport(), PlaceOf("GBP"));
  EXPECT_THAT(clicks_, IsEmpty());
  QTest::mouseRelease(view_.viewport(), Qt::LeftButton, {}, PlaceOf("GBP"));
  ASSERT_EQ(clicks_.size(), 1U);
  EXPECT_EQ(tree_.Selected(), clicks_.front());
}

TEST_F(TreeTest, ShowsTheImagesOfCurrenciesAndCalendars) {
  const auto* model = view_.model();
  for (const char* key : {"EUR", "EUR2026"}) {
    EXPECT_FALSE(
        static_cast<const TreeModel*>(model)->Find(key).data(Qt::DecorationRole).value<QIcon>().isNull());
  }
  tree_.AddRoot({"other", "other", "NoSuchImage"});
  EXPECT_FALSE(static_cast<const TreeModel*>(model)->Find("other").data(Qt::DecorationRole).isValid());
}

TEST_F(TreeTest, ShowsWhatANodeStandsForAsItsTooltipAndToAssistiveTools) {
  tree_.AddRoot({"JPY", "JPY", "Currency", "Yen"});
  const auto told = [this](const char* key, int role) {
    return static_cast<TreeModel*>(view_.model())->Find(key).data(role);
  };
  EXPECT_EQ(told("JPY", Qt::ToolTipRole).toString(), "Yen");
  EXPECT_EQ(told("JPY", Qt::AccessibleDescriptionRole).toString(), "Yen");
  EXPECT_FALSE(told("EUR", Qt::ToolTipRole).isValid());
  EXPECT_FALSE(told("EUR", Qt::AccessibleDescriptionRole).isValid());
}

TEST_F(TreeTest, ShowsADescriptionThatLooksLikeMarkupAsItIs) {
  tree_.AddRoot({"XXX", "XXX", "Currency", "<b>none</b>"});
  const QModelIndex node = static_cast<TreeModel*>(view_.model())->Find("XXX");
  EXPECT_TRUE(node.data(Qt::ToolTipRole).toString().contains("&lt;b&gt;none"));
  EXPECT_EQ(node.data(Qt::AccessibleDescriptionRole).toString(), "<b>none</b>");
}

TEST_F(TreeTest, ReadsANodeThatIsCutToTheEnd) {
  tree_.AddRoot({"LONG", "A <name> that is much too long for a tree as narrow as this one", "Currency"});
  const auto ask_at = [this](const char* key) {
    QHelpEvent event(QEvent::ToolTip, PlaceOf(key), view_.viewport()->mapToGlobal(PlaceOf(key)));
    QCoreApplication::sendEvent(view_.viewport(), &event);
  };
  const auto is_gone = [] { return !QToolTip::isVisible(); };
  ask_at("LONG");
  EXPECT_TRUE(QToolTip::text().contains("A &lt;name&gt; that is much too long"));
  ask_at("EUR");
  EXPECT_TRUE(QTest::qWaitFor(is_gone, 2000));
  view_.resize(900, 400);
  QCoreApplication::processEvents();
  ask_at("LONG");
  EXPECT_TRUE(is_gone());
}

TEST_F(TreeTest, LivesWhenAHandlerClearsAndRefillsItOnEveryEvent) {
  const auto refill = [this](const std::string&) {
    tree_.Clear();
    tree_.AddRoot({"EUR", "EUR", "Currency"});
    tree_.AddChild("EUR", {"EUR2026", "2026", "Calendar"});
  };
  const auto clicked = tree_.OnNodeClick(refill);
  const auto expanded = tree_.OnExpanded(refill);
  const auto collapsed = tree_.OnCollapsed(refill);
  Click("EUR");
  Press(Qt::Key_Down);
  Press(Qt::Key_Right);
  tree_.SetExpanded("EUR", true);
  tree_.Select("EUR2026");
  tree_.SetExpanded("EUR", false);
  EXPECT_EQ(tree_.Count(), 2);
}

}  // namespace
}  // namespace ferrowind::qt
