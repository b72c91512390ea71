#include "ferrowind/adapters/qt/look/line_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <map>
#include <tuple>
#include <utility>

#include "ferrowind/adapters/qt/look/glyph_painter.h"

namespace ferrowind::qt {
namespace {

/// Of one icon, in all its sizes and modes.
constexpr std::size_t kMostPixmaps = 32;

struct Colors {
  QColor line;
  QColor accent;
};

Colors ColorsOf(QIcon::Mode mode, const QColor& accent) {
  const QPalette palette = QGuiApplication::palette();
  if (mode == QIcon::Disabled) {
    const QColor faint = palette.color(QPalette::Disabled, QPalette::ButtonText);
    return {faint, faint};
  }
  if (mode == QIcon::Selected) {
    const QColor on_selection = palette.color(QPalette::Active, QPalette::HighlightedText);
    return {on_selection, on_selection};
  }
  return {palette.color(QPalette::Active, QPalette::ButtonText),
          accent.isValid() ? accent : palette.color(QPalette::Active, QPalette::Link)};
}

class LineIconEngine : public QIconEngine {
 public:
  LineIconEngine(glyphs::MakeGlyph glyph, const QColor& accent)
      : make_glyph_(glyph), glyph_(glyph()), accent_(accent) {}

  [[nodiscard]] QIconEngine* clone() const override { return new LineIconEngine(make_glyph_, accent_); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    const Colors colors = ColorsOf(mode, accent_);
    PaintGlyph(*painter, glyph_, rect, colors.line, colors.accent);
  }

  [[nodiscard]] QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    // Views ask for the same few pixmaps with every row that they paint.
    if (const qint64 palette = QGuiApplication::palette().cacheKey(); palette != drawn_for_palette_) {
      drawn_.clear();
      drawn_for_palette_ = palette;
    }
    if (drawn_.size() > kMostPixmaps) drawn_.clear();
    QPixmap& drawn = drawn_[{size.width(), size.height(), mode}];
    if (drawn.isNull()) {
      drawn = QPixmap(size);
      drawn.fill(Qt::transparent);
      QPainter painter(&drawn);
      paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    }
    return drawn;
  }

 private:
  glyphs::MakeGlyph make_glyph_;
  glyphs::Glyph glyph_;
  QColor accent_;
  /// By width, height and mode.
  std::map<std::tuple<int, int, QIcon::Mode>, QPixmap> drawn_;
  qint64 drawn_for_palette_ = 0;
};

}  // namespace

QIcon LineIcon(glyphs::MakeGlyph glyph, const QColor& accent) {
  return QIcon(new LineIconEngine(glyph, accent));
}

}  // namespace ferrowind::qt
