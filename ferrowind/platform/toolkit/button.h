#pragma once

#include <functional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

class FERROWIND_EXPORT Button : public Control {
 public:
  /// Without the mark of its mnemonic.
  [[nodiscard]] virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  /// What the button does in a sentence: its tooltip, and what assistive tools add to its caption. "" for
  /// nothing to add.
  virtual void SetDescription(const std::string& description) = 0;
  /// The operator pressed the button, by mouse, key or as the form's default or cancel button.
  [[nodiscard]] virtual Subscription OnClick(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
