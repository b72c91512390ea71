#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// Asks the operator and returns the answer: 0 for "Ok", 1 for "Cancel".
///
/// `state` 0 offers "Ok" alone, any other value "Cancel" as well. Modal. Failures of the toolkit reach the
/// caller.
[[nodiscard]] std::int32_t Confirm(platform::Toolkit& toolkit, const std::string& caption,
                                   const std::string& message, std::int32_t state);

/// What an addition asks, in texts as the operator reads them.
struct Question {
  std::string caption;
  std::string message;
  /// What the button says that does it: "Undo".
  std::string verb;
  /// What the other one says; Esc presses it.
  std::string cancel;
  /// Whether Enter alone cancels: something would be lost.
  bool prefers_cancel = false;
};

/// Whether the operator wants it. Modal. Failures of the toolkit reach the caller.
[[nodiscard]] bool Ask(platform::Toolkit& toolkit, const Question& question);

/// Tells the operator something over "Ok" alone, which Enter and Esc press. Modal. Failures of the toolkit
/// reach the caller.
void Inform(platform::Toolkit& toolkit, const std::string& caption, const std::string& message);

}  // namespace ferrowind
