#pragma once

#include <string>

namespace ferrowind::platform {

/// The time now, as histories of calls write moments: UTC, YYYY-MM-DDTHH:MM:SS.sssZ.
[[nodiscard]] std::string MomentNow();

}  // namespace ferrowind::platform
