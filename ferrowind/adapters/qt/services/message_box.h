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
  /// Null for the window whose event is being handled or, outside of events, the active one.
  QWidget* owner = nullptr;
};

/// Shows the message, with a button to copy it, and returns once it is answered. When its owner closes or the
/// application ends before that, it fails with a `platform::Interruption`. Shows nothing and returns at once
/// when the application is ending already, since nobody could answer any more.
void ShowMessageBox(const Message& message);

}  // namespace ferrowind::qt
