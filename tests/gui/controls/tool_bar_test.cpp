#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/popup_place.h"
#include "ferrowind/adapters/qt/controls/qt_tool_bar.h"

namespace ferrowind::qt {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class ToolBarTest : public ::testing::Test {
 protected:
  ToolBarTest() {
    widget_.setObjectName("ssatb");
    bar_.AddTool({"ID_Refresh", "Refresh", "General", "Refresh all"});
    bar_.AddTool({"ID_Copy", "Copy rows & more", "General", "Copy rows from grid to clipboard"});
    bar_.AddTool({"ID_ShowHide", "Groups", "General", "Show groups", platform::ToolKind::kTwoStateButton});
    bar_.AddTool({"ID_Except", "Except day", "General", "Except day from holidays list"});
    bar_.AddTool({"ID_Except2", "Except with message ...", "General", "Except with message"});
    bar_.SetBar("ToolBar", {"ID_Refresh", "ID_Copy", "ID_ShowHide"});
    bar_.AddPopupMenu("ID_StatesMenu", "StatesMenu", {"ID_Except", platform::kToolSeparator, "ID_Except2"});
    // Away from where earlier tests have left the mouse.
    QCursor::setPos(0, 0);
    widget_.move(300, 300);
    widget_.show();
    widget_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget_));
  }

  [[nodiscard]] QToolButton& Button(const char* id) { return *widget_.findChild<QToolButton*>(id); }
  /// Opens the popup menu and runs `script` on it.
  void InMenu(const std::function<void(QMenu&)>& script) {
    bool was_shown = false;
    QTimer::singleShot(20, [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      was_shown = true;
      script(*menu);
      menu->close();
    });
    bar_.ShowPopupMenu("ID_StatesMenu");
    EXPECT_TRUE(was_shown);
  }

  QToolBar widget_;
  QtToolBar bar_{widget_};
  std::vector<std::string> notes_;
  platform::Subscription clicked_ =
      bar_.OnToolClick([this](const std::string& id) { notes_.push_back("click " + id); });
  platform::Subscription entered_ =
      bar_.OnToolEnter([this](const std::string& id) { notes_.push_back("enter " + id); });
  platform::Subscription left_ =
      bar_.OnToolLeave([this](const std::string& id) { notes_.push_back("leave " + id); });
};

TEST_F(ToolBarTest, GivesEachButtonItsIdIconAndDescription) {
  EXPECT_FALSE(Button("ID_Refresh").icon().isNull());
  EXPECT_EQ(Button("ID_Copy").toolTip().left(32), "Copy rows from grid to clipboard");
  EXPECT_EQ(Button("ID_Copy").accessibleName(), "Copy rows & more");
}

TEST_F(ToolBarTest, ClicksNothingOnADisabledButton) {
  bar_.SetToolEnabled("ID_Copy", false);
  QTest::mouseClick(&Button("ID_Copy"), Qt::LeftButton);
  EXPECT_THAT(notes_, testing::Not(Contains("click ID_Copy")));
}

TEST_F(ToolBarTest, ClicksByTheKeyOfATool) {
  QTest::keyClick(&widget_, Qt::Key_F5);
  EXPECT_THAT(notes_, ElementsAre("click ID_Refresh"));
}

TEST_F(ToolBarTest, CanBeUsedByKeyboardAlone) {
  Button("ID_ShowHide").setFocus(Qt::TabFocusReason);
  QTest::keyClick(&Button("ID_ShowHide"), Qt::Key_Space);
  EXPECT_THAT(notes_, Contains("click ID_ShowHide"));
  EXPECT_TRUE(bar_.ToolPressed("ID_ShowHide"));
}

TEST_F(ToolBarTest, EntersTheButtonThatTabReaches) {
  Button("ID_Copy").setFocus(Qt::TabFocusReason);
  Button("ID_ShowHide").setFocus(Qt::TabFocusReason);
  EXPECT_THAT(notes_, ElementsAre("enter ID_Copy", "leave ID_Copy", "enter ID_ShowHide"));
}

TEST_F(ToolBarTest, LeavesAToolBeforeItEntersTheNext) {
  QTest::mouseMove(&Button("ID_Refresh"));
  QTest::qWait(20);
  QTest::mouseMove(&Button("ID_Copy"));
  QTest::qWait(20);
  EXPECT_THAT(notes_, ElementsAre("enter ID_Refresh", "leave ID_Refresh", "enter ID_Copy"));
}

TEST_F(ToolBarTest, LeavesTheToolThatDisappearsUnderTheMouse) {
  QTest::mouseMove(&Button("ID_Refresh"));
  QTest::qWait(20);
  widget_.hide();
  QTest::qWait(20);
  EXPECT_THAT(notes_, ElementsAre("enter ID_Refresh", "leave ID_Refresh"));
}

TEST_F(ToolBarTest, EntersTheItemThatTheKeyboardSelectsInAMenu) {
  InMenu([](QMenu& menu) {
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Down);
  });
  EXPECT_THAT(notes_,
              ElementsAre("enter ID_Except", "leave ID_Except", "enter ID_Except2", "leave ID_Except2"));
}

TEST_F(ToolBarTest, EntersADisabledItemUnderTheMouse) {
  bar_.SetToolEnabled("ID_Except2", false);
  InMenu([](QMenu& menu) { QTest::mouseMove(&menu, menu.actionGeometry(menu.actions().last()).center()); });
  ASSERT_THAT(notes_, Contains("enter ID_Except2"));
  EXPECT_EQ(notes_.back(), "leave ID_Except2");
}

TEST_F(ToolBarTest, EntersNoSeparator) {
  InMenu([](QMenu& menu) { QTest::mouseMove(&menu, menu.actionGeometry(menu.actions().at(1)).center()); });
  EXPECT_THAT(notes_, IsEmpty());
}

TEST_F(ToolBarTest, ShowsCaptionsWithAmpersandsAsTheyAre) {
  bar_.AddPopupMenu("ID_Other", "Other", {"ID_Copy"});
  EXPECT_EQ(widget_.findChild<QToolButton*>("ID_Copy")->defaultAction()->text(), "Copy rows && more");
}

/// The bar in a dialog, which opens a menu and a window for what has a text of "What's this?".
TEST_F(ToolBarTest, OpensNoMenuOrWindowAboutAToolInADialog) {
  QDialog dialog;
  widget_.setParent(&dialog);
  widget_.show();
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  int popups = 0;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr) return;
    ++popups;
    popup->close();
  });
  poll.start(0);
  QToolButton& button = Button("ID_Copy");
  const QPoint middle = button.rect().center();
  QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, middle, button.mapToGlobal(middle));
  QApplication::sendEvent(&button, &menu_key);
  QTest::keyClick(&button, Qt::Key_F1, Qt::ShiftModifier);
  QCoreApplication::processEvents();
  widget_.setParent(nullptr);
  EXPECT_EQ(popups, 0);
  EXPECT_EQ(button.accessibleDescription(), "Copy rows from grid to clipboard");
  EXPECT_EQ(bar_.ToolDescription("ID_Copy"), "Copy rows from grid to clipboard");
}

TEST(PopupPlace, IsTheFocusedItemAfterAKeyAndTheMouseOtherwise) {
  NoticeKeys();
  QWidget window;
  window.setGeometry(100, 100, 200, 200);
  QWidget field(&window);
  field.setGeometry(10, 20, 50, 30);
  field.setFocusPolicy(Qt::StrongFocus);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  field.setFocus();
  QTest::keyClick(&field, Qt::Key_Menu);
  EXPECT_TRUE(QRect(field.mapToGlobal(QPoint(0, 0)), field.size()).contains(PopupPlace()));
  QTest::mouseClick(&window, Qt::LeftButton);
  EXPECT_EQ(PopupPlace(), QCursor::pos());
}

TEST(ToolShortcutTest, IsToldInTheTooltipAndInMenus) {
  QDialog window;
  auto* widget = new QToolBar(&window);
  QtToolBar bar(*widget);
  bar.AddTool({.id = "ID_Find", .caption = "Find", .description = "Find days", .shortcut = "Ctrl+Shift+F"});
  bar.AddPopupMenu("ID_Menu", "Menu", {"ID_Find"});
  bar.SetBar("ToolBar", {"ID_Find"});
  auto& button = *widget->findChild<QToolButton*>("ID_Find");
  EXPECT_EQ(button.toolTip(), "Find days (Ctrl+Shift+F)");
  EXPECT_EQ(button.defaultAction()->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
  EXPECT_TRUE(button.defaultAction()->isShortcutVisibleInContextMenu());
}

TEST(ToolShortcutTest, IsTheDesignsInPlaceOfTheLayouts) {
  QDialog window;
  auto* widget = new QToolBar(&window);
  QtToolBar bar(*widget);
  bar.AddTool({.id = "ID_Refresh", .caption = "Refresh", .shortcut = "F6"});
  bar.SetBar("ToolBar", {"ID_Refresh"});
  EXPECT_EQ(widget->findChild<QToolButton*>("ID_Refresh")->defaultAction()->shortcut(),
            QKeySequence(Qt::Key_F6));
}

TEST_F(ToolBarTest, ShowsANewCaptionAndDescriptionAtOnce) {
  bar_.SetToolCaption("ID_Copy", "Undo & redo");
  bar_.SetToolDescription("ID_Copy", "Undo: Assigned Good Friday to 14 April 2028");
  QToolButton& button = Button("ID_Copy");
  EXPECT_EQ(button.accessibleName(), "Undo & redo");
  EXPECT_EQ(button.accessibleDescription(), "Undo: Assigned Good Friday to 14 April 2028");
  EXPECT_EQ(button.toolTip().left(43), "Undo: Assigned Good Friday to 14 April 2028");
  EXPECT_EQ(button.defaultAction()->text(), "Undo && redo");
}

}  // namespace
}  // namespace ferrowind::qt
