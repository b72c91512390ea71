#pragma once

#include <string>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// The time now, as histories of calls write moments: UTC, YYYY-MM-DDTHH:MM:SS.sssZ.
[[nodiscard]] FERROWIND_EXPORT std::string MomentNow();

}  // namespace ferrowind::platform
