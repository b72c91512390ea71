#pragma once

#include "ferrowind/adapters/automation/module.h"
#include "ferrowind/adapters/windows/com_object.h"

namespace ferrowind::automation {

/// An object that hosts hold, and with it this file loaded.
template <typename First, typename... Others>
using ComObject = windows::ComObject<ModuleHold, First, Others...>;

}  // namespace ferrowind::automation
