#pragma once

#include "ferrowind/adapters/qt/forms/form_layouts.h"

namespace ferrowind::contract {

/// Layouts of the forms of contract_forms.h.
[[nodiscard]] qt::FormLayouts ContractLayouts();

}  // namespace ferrowind::contract
