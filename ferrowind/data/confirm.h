#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// Asks the operator and returns the answer: 0 for "Ok", 1 for "Cancel".
///
/// `state` 0 offers "Ok" alone, any other value "Cancel" as well. Modal. Failures of the toolkit reach the
/// caller.
[[nodiscard]] std::int32_t Confirm(platform::Toolkit& toolkit, const std::string& caption,
                                   const std::string& message, std::int32_t state);

/// Asks whether something may be lost: true for "Ok". Enter alone answers "Cancel".
[[nodiscard]] bool ConfirmLoss(platform::Toolkit& toolkit, const std::string& caption,
                               const std::string& message);

}  // namespace ferrowind
