#pragma once

#include <memory>
#include <vector>

#include "ferrowind/adapters/qt/forms/form_window.h"
#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::qt {

using FormControls = std::vector<std::unique_ptr<platform::Control>>;

/// Gives the controls what their design says: texts, the default and the cancel button, the text box that
/// takes typing, the tab order; and access keys that are unique in the form. `controls` are in the order of
/// the design.
void ApplyDesign(FormWindow& window, const platform::FormDesign& design, const FormControls& controls);

/// Gives the focus to the first control, in the order of the design, that takes it.
void FocusFirst(const FormWindow& window, const FormControls& controls);

}  // namespace ferrowind::qt
