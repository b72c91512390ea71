#pragma once

#include <string>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::contract {

/// The dialog of the platform that lies in front of the others of this thread; null for none.
[[nodiscard]] HWND FrontDialog();

/// Types a name into a question for a file, in place of what is there.
void TypeFileName(HWND question, const std::wstring& name);

}  // namespace ferrowind::contract
