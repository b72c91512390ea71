#include "tests/contract/toolkit/qt/year_operator.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QScrollBar>
#include <QTest>
#include <map>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/year_accessible.h"
#include "ferrowind/adapters/qt/year/year_widget.h"

namespace ferrowind::contract {

YearOperator::YearOperator(platform::YearView& view)
    : pane_(dynamic_cast<qt::YearWidget&>(dynamic_cast<qt::WidgetElement&>(view).ElementWidget()).Pane()) {}

void YearOperator::Click(const platform::YearCell& cell, Qt::MouseButton button,
                         Qt::KeyboardModifiers modifiers) {
  QTest::mouseClick(pane_.viewport(), button, modifiers, PointOf(cell));
}

void YearOperator::Drag(const platform::YearCell& from, const platform::YearCell& to) {
  const QPoint start = PointOf(from);
  QTest::mousePress(pane_.viewport(), Qt::LeftButton, {}, start);
  const QPoint end = pane_.RectOf(*pane_.Days().PlaceOf(to)).center();
  QMouseEvent move(QEvent::MouseMove, end, pane_.viewport()->mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                   {});
  QCoreApplication::sendEvent(pane_.viewport(), &move);
  QTest::mouseRelease(pane_.viewport(), Qt::LeftButton, {}, end);
}

void YearOperator::PressKey(DayKey key, Qt::KeyboardModifiers modifiers) {
  static const std::map<DayKey, Qt::Key> kKeys = {
      {DayKey::kLeft, Qt::Key_Left},     {DayKey::kRight, Qt::Key_Right},      {DayKey::kUp, Qt::Key_Up},
      {DayKey::kDown, Qt::Key_Down},     {DayKey::kHome, Qt::Key_Home},        {DayKey::kEnd, Qt::Key_End},
      {DayKey::kPageUp, Qt::Key_PageUp}, {DayKey::kPageDown, Qt::Key_PageDown}};
  Focus();
  QTest::keyClick(&pane_, kKeys.at(key), modifiers);
}

void YearOperator::PressEnter() {
  Focus();
  QTest::keyClick(&pane_, Qt::Key_Return);
}

void YearOperator::PressMenuKey() {
  Focus();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(&pane_, &event);
}

std::string YearOperator::TextOf(const platform::YearCell& cell) const {
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&pane_);
  const int child = qt::YearAccessible::ChildOf(pane_.Days(), *pane_.Days().PlaceOf(cell));
  return qt::FromQt(table->child(child)->text(QAccessible::Name));
}

QPoint YearOperator::PointOf(const platform::YearCell& cell) {
  const auto place = *pane_.Days().PlaceOf(cell);
  const auto scroll = [](QScrollBar& bar, int beyond) { bar.setValue(bar.value() + beyond); };
  const QPoint middle = pane_.viewport()->rect().center();
  scroll(*pane_.verticalScrollBar(), pane_.RectOf(place).center().y() - middle.y());
  scroll(*pane_.horizontalScrollBar(), pane_.RectOf(place).center().x() - middle.x());
  const QPoint point = pane_.RectOf(place).center();
  EXPECT_TRUE(pane_.viewport()->rect().contains(point));
  return point;
}

void YearOperator::Focus() {
  pane_.window()->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(pane_.window()));
  pane_.setFocus();
}

}  // namespace ferrowind::contract
