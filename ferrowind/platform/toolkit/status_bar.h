#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// The panels of text at the foot of a window.
class FERROWIND_EXPORT StatusBar : public Control {
 public:
  ///@{
  /// Panels count from 1; a panel that the form does not have is the failure Subscript out of range.
  [[nodiscard]] virtual std::string PanelText(std::int32_t panel) const = 0;
  virtual void SetPanelText(std::int32_t panel, const std::string& text) = 0;
  ///@}
};

}  // namespace ferrowind::platform
