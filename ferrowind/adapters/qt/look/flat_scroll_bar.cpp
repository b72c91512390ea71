#include "ferrowind/adapters/qt/look/flat_scroll_bar.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include "ferrowind/adapters/qt/look/blend.h"

namespace ferrowind::qt {
namespace {

// How far from the ground towards the colour of texts.
constexpr double kGrooveStrength = 0.04;
constexpr double kSliderStrength = 0.28;
constexpr double kHoveredStrength = 0.40;
constexpr double kPressedStrength = 0.52;
constexpr double kArrowStrength = 0.60;
constexpr double kDisabledStrength = 0.25;

constexpr int kSliderMargin = 3;
constexpr qreal kArrowReach = 3.5;

void PaintArrow(QPainter& painter, const QRect& area, bool is_horizontal, bool points_back) {
  const QPointF middle = QRectF(area).center();
  const qreal reach = kArrowReach;
  const qreal depth = (points_back ? -reach : reach) / 2;
  QPolygonF arrow;
  if (is_horizontal) {
    arrow << QPointF(-depth, -reach) << QPointF(-depth, reach) << QPointF(depth, 0);
  } else {
    arrow << QPointF(-reach, -depth) << QPointF(reach, -depth) << QPointF(0, depth);
  }
  painter.drawPolygon(arrow.translated(middle));
}

}  // namespace

FlatScrollBar::FlatScrollBar(Qt::Orientation orientation, QWidget* parent) : QScrollBar(orientation, parent) {
  // Each paint covers all of its area.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_Hover);
}

void FlatScrollBar::paintEvent(QPaintEvent* /*event*/) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto area_of = [&](QStyle::SubControl part) {
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, part, this);
  };
  const bool is_horizontal = orientation() == Qt::Horizontal;
  const QColor ground = palette().color(QPalette::Window);
  const QColor ink = palette().color(QPalette::WindowText);
  QPainter painter(this);
  painter.fillRect(rect(), Blend(ground, ink, kGrooveStrength));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);

  const bool can_scroll = isEnabled() && minimum() < maximum();
  painter.setBrush(Blend(ground, ink, can_scroll ? kArrowStrength : kDisabledStrength));
  const bool is_mirrored = is_horizontal && layoutDirection() == Qt::RightToLeft;
  PaintArrow(painter, area_of(QStyle::SC_ScrollBarSubLine), is_horizontal, !is_mirrored);
  PaintArrow(painter, area_of(QStyle::SC_ScrollBarAddLine), is_horizontal, is_mirrored);
  if (!can_scroll) return;

  double strength = kSliderStrength;
  if (option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider)) strength = kHoveredStrength;
  if (isSliderDown()) strength = kPressedStrength;
  painter.setBrush(Blend(ground, ink, strength));
  const QRect slider =
      is_horizontal ? area_of(QStyle::SC_ScrollBarSlider).adjusted(0, kSliderMargin, 0, -kSliderMargin)
                    : area_of(QStyle::SC_ScrollBarSlider).adjusted(kSliderMargin, 0, -kSliderMargin, 0);
  const qreal radius = std::min(slider.width(), slider.height()) / 2.0;
  painter.drawRoundedRect(slider, radius, radius);
}

}  // namespace ferrowind::qt
