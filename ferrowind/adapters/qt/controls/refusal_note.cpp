#include "ferrowind/adapters/qt/controls/refusal_note.h"

#include <QFontMetrics>
#include <QPainter>

#include "ferrowind/adapters/glyphs/glyphs.h"
#include "ferrowind/adapters/qt/look/glyph_painter.h"
#include "ferrowind/adapters/qt/look/refusal_color.h"

namespace ferrowind::qt {
namespace {

constexpr int kGap = 6;

}  // namespace

RefusalNote::RefusalNote(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setContentsMargins(fontMetrics().height() + kGap, 0, 0, 0);
  hide();
}

void RefusalNote::ShowRefusal(const QString& refusal) {
  setText(refusal);
  setVisible(!refusal.isEmpty());
}

void RefusalNote::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  const int side = fontMetrics().height();
  const QColor color = RefusalColor(palette());
  QPainter painter(this);
  PaintGlyph(painter, glyphs::WarningGlyph(), QRectF(0, 0, side, side), color, color);
}

}  // namespace ferrowind::qt
