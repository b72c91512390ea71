#pragma once

#include <QDialog>

#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::qt {

/// Deletes the controls of a layout that the design does not have, and the frames and splitters that held
/// nothing else, so that one layout serves a form with and without some of its controls. What can be no
/// control stays, as do lines and pictures.
void LeaveOutUndesigned(QDialog& window, const platform::FormDesign& design);

}  // namespace ferrowind::qt
