#pragma once

#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::contract {

/// "fmContract": a sizable form with controls of every kind. `txtInside` stands in the frame `fraBox`; all
/// others stand side by side. Its status bar has one panel.
[[nodiscard]] platform::FormDesign ContractForm();
/// "fmContractFixed": a dialog that only its buttons close: `cmdFirst`, the default button `cmdOk`, the
/// cancel button `cmdCancel` and the text box `txtText`, which is first in the tab order.
[[nodiscard]] platform::FormDesign ContractFixedDialog();
/// "fmContractClosable": a dialog that its frame can close, with the button `cmdOk`.
[[nodiscard]] platform::FormDesign ContractClosableDialog();
/// "fmContractTables": the table `tblRows`, in which one row is current, the table `tblCells`, in which one
/// cell is current and the operator can sort and select many rows, and the default button `cmdOk`.
[[nodiscard]] platform::FormDesign ContractTables();
/// "fmNowhere", a form that no adapter has a layout for.
[[nodiscard]] platform::FormDesign FormWithoutLayout();

}  // namespace ferrowind::contract
