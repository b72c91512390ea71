#pragma once

#include <QProxyStyle>

namespace ferrowind::qt {

/// Fusion with edges that can be seen: around fields, buttons, menus and popups it draws a line that stands
/// out from the palette's window colour by 3 to 1 and more, where Fusion takes a shade of that colour, which
/// a dark theme swallows. What has the keyboard has a bolder edge in the colour of links. The images of
/// message boxes are the component's own, which are crisp at any resolution.
class ThemeStyle : public QProxyStyle {
 public:
  ThemeStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  /// In the direction of the text itself, as `DrawTextLine`.
  void drawItemText(QPainter* painter, const QRect& area, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget = nullptr) const override;
  [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                                   const QWidget* widget = nullptr) const override;
};

}  // namespace ferrowind::qt
