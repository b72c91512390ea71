#pragma once

#include <QWidget>

namespace ferrowind::qt {

/// The widget's height in twips.
[[nodiscard]] float HeightOf(const QWidget& widget);
/// Sets it; a widget in a layout gets the height that the layout gives it, at once. A negative height, or one
/// that is not a number, is the failure Invalid argument.
void SetHeightOf(QWidget& widget, float height);

}  // namespace ferrowind::qt
