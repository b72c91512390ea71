#pragma once

#include <oaidl.h>

namespace ferrowind::automation {

/// Whether the function takes no arguments and its result is one that `CallSlot` gives.
[[nodiscard]] bool IsWithoutArguments(const FUNCDESC& function);

/// Calls such a function of `object` in its slot, as the platform would after it had looked for the function
/// and for arguments that there are none of: most of what a script does is to read a property.
///
/// A failure is DISP_E_EXCEPTION, with what the function told in `exception`. `result` and `exception` may be
/// null.
[[nodiscard]] HRESULT CallSlot(const FUNCDESC& function, void* object, VARIANT* result, EXCEPINFO* exception);

}  // namespace ferrowind::automation
