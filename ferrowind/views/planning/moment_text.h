#pragma once

#include <string>

#include "ferrowind/platform/services/locale.h"

namespace ferrowind {

/// A moment of the history (UTC, YYYY-MM-DDTHH:MM:SS.sssZ) as the operator's clock tells it: "14/04/2028 Fri
/// 14:05". A text that is no moment is told as it stands.
[[nodiscard]] std::string MomentText(const platform::Locale& locale, const std::string& moment);

}  // namespace ferrowind
