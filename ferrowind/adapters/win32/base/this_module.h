#pragma once

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// The file that this code is in, which need not be the host's program.
[[nodiscard]] HINSTANCE ThisModule();

}  // namespace ferrowind::win32
