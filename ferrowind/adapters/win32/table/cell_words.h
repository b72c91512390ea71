#pragma once

#include <string>

#include "ferrowind/adapters/win32/base/wording.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::win32 {

/// What a cell says to who cannot see its mark: the word for it and the text, once where the text has it.
[[nodiscard]] std::wstring SpokenText(const platform::TableCell& cell, const Wording& words);

}  // namespace ferrowind::win32
