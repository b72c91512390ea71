#pragma once

#include <winerror.h>
#include <wtypes.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::automation {

/// The failure that a call of the platform came back with: its number, and the platform's text of it.
[[nodiscard]] platform::Failure NativeFailure(HRESULT result);

/// Throws it when the call failed.
void RequireSuccess(HRESULT result);

}  // namespace ferrowind::automation
