#pragma once

#include <QHelpEvent>
#include <QRect>
#include <QString>
#include <QWidget>

namespace ferrowind::qt {

/// `text` as a widget's tooltip takes it: what looks like markup is not taken for markup.
[[nodiscard]] QString PlainToolTip(const QString& text);

/// Shows `text`, letter by letter as it is, as the tooltip of `area` in `widget`; without a text hides the
/// tooltip.
void ShowTextTip(const QHelpEvent& event, QWidget& widget, const QRect& area, const QString& text);

}  // namespace ferrowind::qt
