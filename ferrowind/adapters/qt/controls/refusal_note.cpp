#include "ferrowind/adapters/qt/controls/refusal_note.h"

#include <QFontMetrics>
#include <QPainter>

#include "ferrowind/adapters/qt/look/glyphs.h"
#include "ferrowind/adapters/qt/look/refusal_color.h"

namespace ferrowind::qt {
namespace {

constexpr qreal kGlyphUnits = 24;
constexpr qreal kLineWidth = 2;
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
  const Glyph glyph = WarningGlyph();
  const QColor color = RefusalColor(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / kGlyphUnits, side / kGlyphUnits);
  const QPen pen(color, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter.strokePath(glyph.accent_lines, pen);
  painter.strokePath(glyph.lines, pen);
  painter.fillPath(glyph.solids, color);
}

}  // namespace ferrowind::qt
