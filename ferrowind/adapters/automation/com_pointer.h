#pragma once

#include "ferrowind/adapters/windows/com_pointer.h"

namespace ferrowind::automation {

using windows::ComPointer;

}  // namespace ferrowind::automation
