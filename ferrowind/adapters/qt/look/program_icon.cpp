#include "ferrowind/adapters/qt/look/program_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace ferrowind::qt {
namespace {

constexpr QColor kTile(0x1f, 0x6f, 0xc4);
constexpr QColor kSheet(0xff, 0xff, 0xff);
constexpr QColor kDay(0x8f, 0xb4, 0xdc);
constexpr QColor kHoliday(0xe0, 0x5a, 0x2b);
/// The side of the square that the icon is designed in.
constexpr qreal kUnits = 16;

/// Turns places of the design into whole pixels: an edge between two of them would blur.
class PixelGrid {
 public:
  explicit PixelGrid(const QRectF& square) : square_(square) {}

  [[nodiscard]] qreal Unit() const { return square_.width() / kUnits; }
  [[nodiscard]] QRectF Rect(qreal left, qreal top, qreal right, qreal bottom) const {
    return {QPointF(X(left), Y(top)), QPointF(X(right), Y(bottom))};
  }

 private:
  [[nodiscard]] qreal X(qreal place) const { return std::round(square_.left() + place * Unit()); }
  [[nodiscard]] qreal Y(qreal place) const { return std::round(square_.top() + place * Unit()); }

  QRectF square_;
};

void Fill(QPainter& painter, const QRectF& rect, qreal corner, const QColor& color) {
  QPainterPath path;
  path.addRoundedRect(rect, corner, corner);
  painter.fillPath(path, color);
}

void DrawIcon(QPainter& painter, const QRectF& square) {
  const PixelGrid grid(square);
  Fill(painter, grid.Rect(0, 0, 16, 16), 3 * grid.Unit(), kTile);
  Fill(painter, grid.Rect(3, 5, 13, 13), grid.Unit(), kSheet);
  for (const qreal ring : {5.0, 10.0}) Fill(painter, grid.Rect(ring, 2, ring + 1, 4), 0, kSheet);
  for (const qreal top : {7.0, 10.0}) {
    for (const qreal left : {4.0, 7.0, 10.0}) {
      const bool is_holiday = left == 10 && top == 10;
      Fill(painter, grid.Rect(left, top, left + 2, top + 2), 0, is_holiday ? kHoliday : kDay);
    }
  }
}

class ProgramIconEngine : public QIconEngine {
 public:
  [[nodiscard]] QIconEngine* clone() const override { return new ProgramIconEngine; }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    const qreal side = std::min(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    DrawIcon(*painter, square);
    painter->restore();
  }

  [[nodiscard]] QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return drawn;
  }

  /// What is handed to the desktop, which asks for no other sizes.
  [[nodiscard]] QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    QList<QSize> sizes;
    for (const int side : {16, 20, 22, 24, 32, 40, 48, 64, 96, 128, 256}) sizes << QSize(side, side);
    return sizes;
  }
};

}  // namespace

QIcon ProgramIcon() { return QIcon(new ProgramIconEngine); }

}  // namespace ferrowind::qt
