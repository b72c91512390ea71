#pragma once

#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A line of text, or several where the form's layout lets it wrap. Plain text, never markup.
class FERROWIND_EXPORT Label : public Control {
 public:
  ///@{
  /// What the label shows; "&" is a letter like others.
  [[nodiscard]] virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
  ///@}
  /// Has assistive tools read the text out once, for those who do not see that it appears. The focus stays.
  virtual void Announce() = 0;
};

}  // namespace ferrowind::platform
