#pragma once

#include "ferrowind/adapters/win32/forms/form_layout.h"

namespace ferrowind::contract {

/// The layouts of the forms that the toolkit's contract uses.
[[nodiscard]] win32::FormLayouts ContractLayouts();

}  // namespace ferrowind::contract
