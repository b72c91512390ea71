#pragma once

#include <QHelpEvent>
#include <QRect>
#include <QString>
#include <QWidget>

namespace ferrowind::qt {

/// Shows `text`, letter by letter as it is, as the tooltip of `area` in `widget`; without a text hides the
/// tooltip.
void ShowTextTip(const QHelpEvent& event, QWidget& widget, const QRect& area, const QString& text);

}  // namespace ferrowind::qt
