#include "ferrowind/adapters/qt/year/year_legend.h"

#include <QEvent>
#include <QPainter>
#include <QStringList>
#include <cmath>
#include <utility>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/legend_painter.h"

namespace ferrowind::qt {
namespace {

constexpr int kMargin = 6;

}  // namespace

YearLegend::YearLegend(QWidget* parent) : QWidget(parent) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void YearLegend::SetEntries(std::vector<platform::YearLegendEntry> entries) {
  entries_ = std::move(entries);
  QStringList texts;
  for (const auto& entry : entries_) {
    const QString letter = ToQt(entry.look.letter);
    texts.append(letter.isEmpty() ? ToQt(entry.text) : letter + QStringLiteral(": ") + ToQt(entry.text));
  }
  setAccessibleName(texts.join(QStringLiteral(", ")));
  setVisible(!entries_.empty());
  updateGeometry();
  update();
}

int YearLegend::heightForWidth(int width) const {
  const QFont writing = font();
  const LegendPainter legend(entries_, writing, layoutDirection() == Qt::RightToLeft);
  return static_cast<int>(std::ceil(legend.HeightFor(width - 2 * kMargin))) + kMargin;
}

QSize YearLegend::sizeHint() const {
  const int at_hand = std::max(width(), 1);
  return {0, heightForWidth(at_hand)};
}

void YearLegend::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) updateGeometry();
}

void YearLegend::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QFont writing = font();
  const LegendPainter legend(entries_, writing, layoutDirection() == Qt::RightToLeft);
  legend.Paint(painter, QRectF(rect()).adjusted(kMargin, kMargin / 2, -kMargin, 0), YearColors(palette()));
}

}  // namespace ferrowind::qt
