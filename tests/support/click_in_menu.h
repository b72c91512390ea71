#pragma once

#include <QAction>
#include <QMenu>
#include <QPoint>
#include <QTest>

namespace ferrowind::testing {

/// Chooses `action` with the mouse as a hand does, which moves over the menu before it presses: a menu takes
/// a press without that for the one that opened it, and closes.
inline void ClickInMenu(QMenu& menu, QAction& action) {
  const QPoint target = menu.actionGeometry(&action).center();
  constexpr int kSteps = 10;
  for (int left = kSteps; left >= 0; --left) QTest::mouseMove(&menu, target - QPoint(left, 0));
  QTest::mouseClick(&menu, Qt::LeftButton, {}, target);
}

}  // namespace ferrowind::testing
