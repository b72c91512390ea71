#pragma once

#include <string>

#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A line of text, or several where the form's layout lets it wrap. Plain text, never markup.
class Label : public Control {
 public:
  [[nodiscard]] virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
};

}  // namespace ferrowind::platform
