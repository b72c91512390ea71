#pragma once

#include <string>

#include "ferrowind/platform/services/locale.h"

/// Moments of the history (UTC, YYYY-MM-DDTHH:MM:SS.sssZ) as the operator's clock and language tell them. A
/// text that is no moment is told as it stands.
namespace ferrowind::planning {

/// "14/04/2028 Fri 14:05".
[[nodiscard]] std::string MomentText(const platform::Locale& locale, const std::string& moment);

/// To the second, where that tells one entry of the history from another: "14/04/2028 Fri 14:05:31".
[[nodiscard]] std::string ExactMomentText(const platform::Locale& locale, const std::string& moment);

}  // namespace ferrowind::planning
