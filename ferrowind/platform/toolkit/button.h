#pragma once

#include <functional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A button that does something when it is pressed, and keeps no state.
class FERROWIND_EXPORT Button : public Control {
 public:
  ///@{
  /// Without the mark of the access key, which is the layout's to give; "&" is a letter like others.
  [[nodiscard]] virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  ///@}
  /// What the button does in a sentence: its tooltip, and what assistive tools add to its caption. "" for
  /// nothing to add.
  virtual void SetDescription(const std::string& description) = 0;
  /// The operator pressed the button, by mouse, key or as the form's default or cancel button.
  [[nodiscard]] virtual Subscription OnClick(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
