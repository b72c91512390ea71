#pragma once

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// Closes a dialog that unloads itself: hides it, which ends the modal show, lets pending messages run, and
/// unloads it.
void CloseDialog(platform::Toolkit& toolkit, platform::Form& form);

}  // namespace ferrowind
