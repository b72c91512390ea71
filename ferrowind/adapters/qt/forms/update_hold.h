#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace ferrowind::qt {

/// Holds back what a window wants to paint, from its making until it is dropped; then the window paints once
/// what has changed meanwhile. The window may go first.
///
/// Disabling the updates of a widget would do the same, but enabling them again repaints all of the widget,
/// whether it has changed or not.
class UpdateHold : public QObject {
 public:
  explicit UpdateHold(QWidget& window);
  ~UpdateHold() override;
  UpdateHold(const UpdateHold&) = delete;
  UpdateHold& operator=(const UpdateHold&) = delete;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> window_;
  bool has_held_back_ = false;
};

}  // namespace ferrowind::qt
