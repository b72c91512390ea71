#include "ferrowind/adapters/qt/year/legend_painter.h"

#include <QFontMetricsF>
#include <algorithm>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/day_marks.h"

namespace ferrowind::qt {

using platform::DayLook;
using platform::DayShape;
using platform::YearLegendEntry;

namespace {

/// A day of that look, without a number.
void PaintSample(QPainter& painter, const QRectF& area, const DayLook& look, const YearColors& colors,
                 const QFont& font) {
  const YearColors::Tint& tint = colors.Of(look.tint);
  painter.fillRect(area, tint.ground);
  if (look.shape == DayShape::kHatching) DrawHatching(painter, area, tint.mark);
  painter.setPen(QPen(colors.line, area.height() / 16));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(area);
  const qreal mark = area.height() * 0.4;
  const bool has_both = look.shape != DayShape::kNone && !look.letter.empty();
  const qreal half = has_both ? area.width() / 2 : area.width();
  DrawDayMark(painter, {area.left() + (half - mark) / 2, area.center().y() - mark / 2, mark, mark},
              look.shape, tint.mark);
  painter.setFont(font);
  painter.setPen(tint.mark);
  painter.drawText(area.adjusted(has_both ? half : 0, 0, 0, 0), Qt::AlignCenter | Qt::TextSingleLine,
                   ToQt(look.letter));
}

}  // namespace

LegendPainter::LegendPainter(const std::vector<YearLegendEntry>& entries, const QFont& font,
                             bool is_right_to_left)
    : entries_(entries),
      font_(font),
      is_right_to_left_(is_right_to_left),
      line_height_(QFontMetricsF(font).height() * 1.5),
      sample_width_(QFontMetricsF(font).height() * 1.8) {}

qreal LegendPainter::HeightFor(qreal width) const {
  qreal height = 0;
  Place(width, [&](const YearLegendEntry&, const QRectF& area) { height = std::max(height, area.bottom()); });
  return height;
}

void LegendPainter::Place(qreal width,
                          const std::function<void(const YearLegendEntry&, const QRectF&)>& place) const {
  const QFontMetricsF metrics(font_);
  const qreal gap = metrics.height();
  qreal x = 0;
  qreal y = 0;
  for (const YearLegendEntry& entry : entries_) {
    const qreal entry_width = sample_width_ + gap / 2 + metrics.horizontalAdvance(ToQt(entry.text)) + 1;
    if (x > 0 && x + entry_width > width) {
      x = 0;
      y += line_height_;
    }
    const qreal left = is_right_to_left_ ? width - x - entry_width : x;
    place(entry, QRectF(left, y, entry_width, line_height_));
    x += entry_width + gap * 1.5;
  }
}

void LegendPainter::Paint(QPainter& painter, const QRectF& area, const YearColors& colors) const {
  painter.setRenderHint(QPainter::Antialiasing);
  const QFontMetricsF metrics(font_);
  Place(area.width(), [&](const YearLegendEntry& entry, const QRectF& place) {
    const QRectF whole = place.translated(area.topLeft());
    const qreal sample_left = is_right_to_left_ ? whole.right() - sample_width_ : whole.left();
    const qreal sample_height = metrics.height();
    PaintSample(painter, {sample_left, whole.center().y() - sample_height / 2, sample_width_, sample_height},
                entry.look, colors, font_);
    const qreal beside = sample_width_ + metrics.height() / 2;
    painter.setFont(font_);
    painter.setPen(colors.text);
    painter.drawText(is_right_to_left_ ? whole.adjusted(0, 0, -beside, 0) : whole.adjusted(beside, 0, 0, 0),
                     Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine, ToQt(entry.text));
  });
}

}  // namespace ferrowind::qt
