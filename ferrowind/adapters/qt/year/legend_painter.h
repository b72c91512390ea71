#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <functional>
#include <vector>

#include "ferrowind/adapters/qt/year/year_colors.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::qt {

/// Paints what the looks of days mean, in as many lines as they need.
class LegendPainter {
 public:
  /// All must outlive the painter.
  LegendPainter(const std::vector<platform::YearLegendEntry>& entries, const QFont& font,
                bool is_right_to_left);

  /// 0 without entries.
  [[nodiscard]] qreal HeightFor(qreal width) const;
  void Paint(QPainter& painter, const QRectF& area, const YearColors& colors) const;

 private:
  /// Calls `place` with each entry and its area, from the top left of a legend of that width on.
  void Place(qreal width,
             const std::function<void(const platform::YearLegendEntry&, const QRectF&)>& place) const;

  const std::vector<platform::YearLegendEntry>& entries_;
  const QFont& font_;
  bool is_right_to_left_;
  qreal line_height_;
  qreal sample_width_;
};

}  // namespace ferrowind::qt
