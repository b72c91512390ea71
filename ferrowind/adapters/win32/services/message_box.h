#pragma once

#include <string>

namespace ferrowind::win32 {

struct Message {
  std::wstring title;
  /// Cut, with an ellipsis, where it would not fit on a screen.
  std::wstring text;
  bool is_error = false;
  bool is_on_top = false;
};

/// Shows the message by the platform's own box, which copies it by Ctrl+C, and returns once it is answered.
/// It belongs to the form whose event is being handled or, outside of events, to the active window; the
/// thread's other windows take no input meanwhile. When its owner closes or the application ends before it is
/// answered, it fails with a `platform::Interruption`. Shows nothing and returns at once when the application
/// is ending already. One that the platform cannot show is a failure.
void ShowMessageBox(const Message& message);

}  // namespace ferrowind::win32
