#pragma once

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// Windows that this thread makes while it lives are of the platform's present controls, as the manifest in
/// this file asks for: a host that has no manifest of its own, such as one of scripts, would get those of the
/// version before. Where this code's file has no manifest, the host's decides.
class PresentControls {
 public:
  PresentControls();
  ~PresentControls();
  PresentControls(const PresentControls&) = delete;
  PresentControls& operator=(const PresentControls&) = delete;

 private:
  bool is_active_ = false;
  ULONG_PTR cookie_ = 0;
};

}  // namespace ferrowind::win32
