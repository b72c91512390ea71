#include "ferrowind/adapters/qt/look/text_tip.h"

#include <QTextDocument>
#include <QToolTip>

namespace ferrowind::qt {

QString PlainToolTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

void ShowTextTip(const QHelpEvent& event, QWidget& widget, const QRect& area, const QString& text) {
  if (text.isEmpty()) {
    QToolTip::hideText();
    return;
  }
  // Escaped, so that what an operator typed is not taken for markup; as markup a long text is also broken
  // into lines.
  QToolTip::showText(event.globalPos(),
                     QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>"), &widget,
                     area);
}

}  // namespace ferrowind::qt
