#include "ferrowind/adapters/qt/grid/text_cache.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace ferrowind::qt {

namespace {

/// More texts than a large screen shows in its cells; beyond it the oldest are not worth finding.
constexpr std::size_t kMostLayouts = 8192;
/// No cell is wide enough to show more, and laying out a text of megabytes would stall the painting.
constexpr qsizetype kMostCharacters = 1000;

QString SingleLine(const QString& text) {
  QString line = text.left(kMostCharacters);
  for (QChar& character : line) {
    if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
        character == QChar::ParagraphSeparator) {
      character = QLatin1Char(' ');
    }
  }
  return line;
}

}  // namespace

TextCache::TextCache(const QFont& font) : metrics_(font), bold_metrics_(font) { SetFont(font); }

void TextCache::SetFont(const QFont& font) {
  for (unsigned char style = 0; style < 4; ++style) {
    fonts_[style] = font;
    if ((style & kBold) != 0) fonts_[style].setBold(true);
    if ((style & kStruckThrough) != 0) fonts_[style].setStrikeOut(true);
  }
  metrics_ = QFontMetrics(fonts_[kPlain]);
  bold_metrics_ = QFontMetrics(fonts_[kBold]);
  layouts_.clear();
  widths_.clear();
  for (auto& widths : letter_widths_) widths.clear();
}

int TextCache::WidthOf(const QString& text, unsigned char style) const {
  const auto known = widths_.constFind({text, style});
  if (known != widths_.constEnd()) return *known;
  if (widths_.size() >= static_cast<qsizetype>(kMostLayouts)) widths_.clear();
  const int width = MetricsOf(style).horizontalAdvance(SingleLine(text));
  widths_.insert({text, style}, width);
  return width;
}

bool TextCache::FitsByLetters(const QString& text, int width, unsigned char style) const {
  auto& known = letter_widths_[(style & kBold) != 0 ? 1 : 0];
  int needed = 0;
  for (const QChar letter : text) {
    // Half of a character has no width of its own.
    if (letter.isSurrogate()) return false;
    const auto [place, is_new] = known.try_emplace(letter.unicode());
    if (is_new) place->second = MetricsOf(style).horizontalAdvance(letter);
    needed += place->second;
    if (needed > width) return false;
  }
  return true;
}

const TextCache::Layout& TextCache::LayoutOf(const QString& text, int width, unsigned char style) {
  const Key key{text, width, style};
  const auto known = layouts_.find(key);
  if (known != layouts_.end()) return known->second;
  if (layouts_.size() >= kMostLayouts) layouts_.clear();
  const QFontMetrics& metrics = MetricsOf(style);
  const int whole_width = WidthOf(text, style);
  const bool fits = whole_width <= width;
  const QString shown = fits ? SingleLine(text) : metrics.elidedText(SingleLine(text), Qt::ElideRight, width);
  Layout layout{QStaticText(shown), fits ? whole_width : metrics.horizontalAdvance(shown)};
  layout.text.setTextFormat(Qt::PlainText);
  layout.text.setPerformanceHint(QStaticText::AggressiveCaching);
  layout.text.prepare(QTransform(), FontOf(style));
  return layouts_.emplace(key, std::move(layout)).first->second;
}

int TextCache::Draw(QPainter& painter, const QRect& area, Qt::AlignmentFlag alignment, const QString& text,
                    unsigned char style) {
  if (text.isEmpty() || area.width() <= 0) return 0;
  const Layout& layout = LayoutOf(text, area.width(), style);
  painter.setFont(FontOf(style));
  const int free = area.width() - layout.width;
  const int left = area.left() + (alignment == Qt::AlignRight ? std::max(free, 0) : 0);
  const int top = area.top() + (area.height() - metrics_.height()) / 2;
  painter.drawStaticText(left, top, layout.text);
  return std::min(layout.width, area.width());
}

}  // namespace ferrowind::qt
