#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/adapters/headless/script_errors.h"

namespace ferrowind::headless {

class ControlCore;

/// What a form is to its controls.
class ControlHost {
 public:
  virtual ~ControlHost() = default;
  [[nodiscard]] virtual CallLog& Log() = 0;
  /// Keeps the form and its controls alive, and at work, while one of them raises an event, whose handler may
  /// drop the form. To be held on the stack only, as those kept later are let go first.
  [[nodiscard]] virtual std::shared_ptr<void> Keep() = 0;
  /// Gives the keyboard focus to a control; the one that had it raises its loss.
  virtual void MoveFocusTo(ControlCore& control) = 0;
  /// Script error when the form is not shown or a modal form is in front of it. `action` is what the operator
  /// tries.
  virtual void RequireInput(const std::string& action) = 0;
  [[nodiscard]] virtual ScriptErrors& Errors() = 0;
};

}  // namespace ferrowind::headless
