#pragma once

#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// Shows a text of any number of lines, which wraps and scrolls and which the operator can select and copy
/// but not change. Empty at first, or the design's text.
class FERROWIND_EXPORT TextView : public Control {
 public:
  /// The whole text, with "\n" between lines.
  [[nodiscard]] virtual std::string Text() const = 0;
  /// Letter by letter as it is, with "\n" between lines, from its beginning. The same text again leaves the
  /// place and the selection as they are.
  virtual void SetText(const std::string& text) = 0;
};

}  // namespace ferrowind::platform
