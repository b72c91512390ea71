#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QRect>
#include <QStaticText>
#include <QString>
#include <cstddef>
#include <unordered_map>
#include <utility>

class QPainter;

namespace ferrowind::qt {

/// Draws single lines of text, each laid out once: a grid repeats the same few texts from row to row and from
/// paint to paint, and laying them out is most of the cost of painting it.
class TextCache {
 public:
  enum Style : unsigned char { kPlain = 0, kBold = 1, kStruckThrough = 2 };

  explicit TextCache(const QFont& font);

  void SetFont(const QFont& font);
  [[nodiscard]] const QFontMetrics& Metrics() const { return metrics_; }
  /// Draws in the painter's pen, centred vertically, cut with an ellipsis where it does not fit. Returns the
  /// width drawn.
  int Draw(QPainter& painter, const QRect& area, Qt::AlignmentFlag alignment, const QString& text,
           unsigned char style = kPlain);
  [[nodiscard]] int WidthOf(const QString& text, unsigned char style = kPlain) const;
  /// Whether the text is no wider than `width`, judged by its letters one by one. Many times quicker than
  /// laying the text out; wrong at most by the pixels that neighbouring letters push each other apart.
  [[nodiscard]] bool FitsByLetters(const QString& text, int width, unsigned char style = kPlain) const;

 private:
  struct Key {
    QString text;
    int width;
    unsigned char style;
    friend bool operator==(const Key& left, const Key& right) {
      return left.width == right.width && left.style == right.style && left.text == right.text;
    }
  };
  struct KeyHash {
    std::size_t operator()(const Key& key) const { return qHashMulti(0, key.text, key.width, key.style); }
  };
  struct Layout {
    QStaticText text;
    int width = 0;
  };

  [[nodiscard]] const QFontMetrics& MetricsOf(unsigned char style) const {
    return (style & kBold) != 0 ? bold_metrics_ : metrics_;
  }
  [[nodiscard]] const QFont& FontOf(unsigned char style) const { return fonts_[style]; }
  [[nodiscard]] const Layout& LayoutOf(const QString& text, int width, unsigned char style);

  QFont fonts_[4];
  QFontMetrics metrics_;
  QFontMetrics bold_metrics_;
  std::unordered_map<Key, Layout, KeyHash> layouts_;
  /// Of whole texts, by text and style.
  mutable QHash<std::pair<QString, unsigned char>, int> widths_;
  /// Of the letters of the plain and the bold font, as far as they were asked for.
  mutable std::unordered_map<char16_t, int> letter_widths_[2];
};

}  // namespace ferrowind::qt
