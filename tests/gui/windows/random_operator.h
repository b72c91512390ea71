#pragma once

#include <QObject>
#include <chrono>
#include <cstdint>
#include <functional>
#include <random>
#include <string>

#include "tests/gui/windows/operator_desk.h"

namespace ferrowind::gui {

/// An operator who does anything: clicks, keys, drags, wheel, resizing and menus on whatever window is on
/// top, while the database is taken away, locked and brought back. Dialogs of the desktop for files and
/// printers are turned down at once.
///
/// Goes on inside the menus and dialogs that its own input opens. The same seed gives the same decisions.
class RandomOperator : public QObject {
 public:
  /// `reopen` shows the Calendars window again after it was closed; it must not wait for events, since those
  /// hold the next actions.
  RandomOperator(OperatorDesk& desk, std::uint32_t seed, std::function<void()> reopen);
  ~RandomOperator() override;

  /// Acts for that long, then closes what is open apart from the Calendars window and sets the database free.
  void ActFor(std::chrono::milliseconds time);
  /// How many times it acted.
  [[nodiscard]] int Actions() const { return actions_; }

 private:
  struct Fault;

  void ActLater();
  void Act();
  void ActOn(QWidget& window);
  void ClickAnywhere(QWidget& window);
  void DoubleClickAnywhere(QWidget& window);
  void PressAnyKey();
  void TypeAnything();
  void TurnWheelAnywhere(QWidget& window);
  void DragAnywhere(QWidget& window);
  void ResizeWindow(QWidget& window);
  void ClickAnyButton(QWidget& window);
  void ClickAnyTool(QWidget& window);
  void OpenDayMenu(QWidget& window);
  void CloseWindow(QWidget& window);
  void ChangeDatabase();
  void FreeDatabase();
  void ExpectNothingLocked() const;
  void CloseAll();

  [[nodiscard]] int Below(int limit);
  [[nodiscard]] QWidget& AnyWidgetIn(QWidget& window);
  [[nodiscard]] QPoint AnyPointIn(const QWidget& widget);

  OperatorDesk& desk_;
  std::mt19937 random_;
  std::function<void()> reopen_;
  std::unique_ptr<Fault> fault_;
  int actions_ = 0;
  /// How many actions are under way, one inside the other.
  int depth_ = 0;
  bool is_acting_ = false;
  std::chrono::steady_clock::time_point end_;
};

}  // namespace ferrowind::gui
