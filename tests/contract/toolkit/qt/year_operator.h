#pragma once

#include <QPoint>
#include <string>

#include "ferrowind/adapters/qt/year/year_pane.h"
#include "ferrowind/platform/toolkit/year_view.h"

#include "tests/contract/toolkit/toolkit_under_test.h"

namespace ferrowind::contract {

/// An operator at a year view that is on the screen.
class YearOperator {
 public:
  explicit YearOperator(platform::YearView& view);

  void Click(const platform::YearCell& cell, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void Drag(const platform::YearCell& from, const platform::YearCell& to);
  void PressKey(DayKey key, Qt::KeyboardModifiers modifiers);
  void PressEnter();
  void PressMenuKey();
  [[nodiscard]] std::string TextOf(const platform::YearCell& cell) const;

 private:
  /// Scrolls the day into sight.
  [[nodiscard]] QPoint PointOf(const platform::YearCell& cell);
  void Focus();

  qt::YearPane& pane_;
};

}  // namespace ferrowind::contract
