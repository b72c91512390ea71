#pragma once

#include <QWidget>
#include <memory>

#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::qt {

/// The control of that kind over a widget of a form's layout, which must outlive it; null when the widget is
/// not of that kind.
[[nodiscard]] std::unique_ptr<platform::Control> MakeControl(platform::ControlKind kind, QWidget& widget);

/// Whether a widget of a layout is there to be a control that the operator reads or uses.
[[nodiscard]] bool CanBeControl(const QWidget& widget);
/// Whether a widget of a layout is there for what stands in it.
[[nodiscard]] bool CanHoldControls(const QWidget& widget);

}  // namespace ferrowind::qt
