#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// A part of a window that paints itself, as assistive programs are told of it.
struct AccessiblePart {
  std::wstring name = {};
  std::wstring value = {};
  std::wstring description = {};
  /// ROLE_SYSTEM_... of the platform.
  LONG role = 0;
  /// STATE_SYSTEM_... of the platform.
  LONG state = 0;
  /// In the client area of the window; it may lie outside of what is in sight.
  RECT area{};
};

/// What assistive programs are told of the parts of a window that paints itself. Parts count from 1; 0 is the
/// window itself or none.
class AccessibleParts {
 public:
  virtual ~AccessibleParts() = default;
  /// The role of the window.
  [[nodiscard]] virtual LONG WindowRole() const = 0;
  [[nodiscard]] virtual std::wstring WindowDescription() const { return {}; }
  [[nodiscard]] virtual LONG PartCount() const = 0;
  /// Precondition: there is such a part.
  [[nodiscard]] virtual AccessiblePart PartAt(LONG part) const = 0;
  /// At a point of the client area.
  [[nodiscard]] virtual LONG PartUnder(POINT client) const = 0;
  /// The one that the keyboard acts on while the window has the focus.
  [[nodiscard]] virtual LONG CurrentPart() const = 0;
  [[nodiscard]] virtual std::vector<LONG> SelectedParts() const = 0;
  /// Makes the part the current and only selected one; does nothing for one that cannot be.
  virtual void ChoosePart(LONG part) = 0;
};

}  // namespace ferrowind::win32
