#pragma once

#include <QAction>
#include <QMenu>
#include <QPoint>
#include <QPointer>
#include <QTest>

namespace ferrowind::testing {

/// Chooses `action` with the mouse as a hand does, which moves over the menu before it presses: a menu takes
/// a press without that for the one that opened it, and closes. Does no more once the menu is closed, since a
/// move handles whatever events wait.
inline void ClickInMenu(QMenu& menu, QAction& action) {
  const QPoint target = menu.actionGeometry(&action).center();
  constexpr int kSteps = 10;
  const QPointer<QMenu> open = &menu;
  for (int left = kSteps; left >= 0 && open && open->isVisible(); --left) {
    QTest::mouseMove(open, target - QPoint(left, 0));
  }
  if (open && open->isVisible()) QTest::mouseClick(open, Qt::LeftButton, {}, target);
}

}  // namespace ferrowind::testing
