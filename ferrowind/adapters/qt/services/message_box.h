#pragma once

#include <QString>
#include <QWidget>

namespace ferrowind::qt {

struct Message {
  QString title;
  /// Shown as it is, never as markup. The part that would not fit on a screen is behind a button.
  QString text;
  bool is_error = false;
  bool is_modal = true;
  bool is_on_top = false;
  /// Null for the active window.
  QWidget* owner = nullptr;
};

/// Shows the message, with a button to copy it, and returns once it is answered. Shows nothing and returns at
/// once when the application is ending, since nobody could answer any more.
void ShowMessageBox(const Message& message);

}  // namespace ferrowind::qt
