#pragma once

#include <QColor>
#include <QPalette>

namespace ferrowind::qt {

/// The colours that a grid is painted in, made from the palette of its widget.
struct GridColors {
  explicit GridColors(const QPalette& palette);

  bool is_dark = false;
  bool is_enabled = true;
  QColor base;
  QColor alternate;
  QColor text;
  /// For what accompanies: captions and counts of groups, numbers of sort keys.
  QColor muted;
  QColor line;
  QColor accent;
  /// The ground of selected rows, and of the current one among them.
  QColor selected;
  QColor current;
  /// The frame around the current row, readable on all grounds of rows.
  QColor current_frame;
  QColor group;
  QColor header;
  QColor header_pressed;
  QColor header_line;
};

/// `color` as it is where it can be read on `background`, else the nearest lighter or darker shade of its hue
/// that can.
[[nodiscard]] QColor ReadableOn(const QColor& background, const QColor& color);

}  // namespace ferrowind::qt
