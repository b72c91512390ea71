#pragma once

#include <oaidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"

namespace ferrowind::bench {

inline constexpr DISPID kMinimalVersion = 1;

/// The least that answers a late-bound call of the one property of `kMinimalVersion`, with what the control's
/// `Version` gives: no type library, no checks of arguments, no error information.
[[nodiscard]] automation::ComPointer<IDispatch> NewMinimalVersion();

}  // namespace ferrowind::bench
