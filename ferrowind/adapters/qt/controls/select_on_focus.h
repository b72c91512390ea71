#pragma once

#include <QLineEdit>
#include <QObject>

namespace ferrowind::qt {

/// Selects the whole text of a line edit whenever it gets the focus, also by a click, so that typing replaces
/// it; a second click puts the cursor into the text. Lives as long as the line edit.
class SelectOnFocus : public QObject {
 public:
  explicit SelectOnFocus(QLineEdit& line);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit& line_;
  /// The press of a click moves the cursor, so that the text is selected on its release.
  bool is_focused_by_press_ = false;
};

}  // namespace ferrowind::qt
