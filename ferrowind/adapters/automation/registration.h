#pragma once

#include <windows.h>

namespace ferrowind::automation {

/// Registers the class of the control, the type library and its interfaces, for all users or the present one,
/// so that hosts create the control by its programmatic identifier and call it from any apartment. All of it
/// or nothing: without the right to it, it is the failure 0x80070005, which says so.
void RegisterServer(HKEY users);
/// Takes that away, also where parts of it are missing.
void UnregisterServer(HKEY users);

}  // namespace ferrowind::automation
