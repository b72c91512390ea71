#pragma once

#include <functional>
#include <vector>

#include "ferrowind/adapters/win32/year/year_colors.h"
#include "ferrowind/adapters/year_engine/areas.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::win32 {

/// Paints what the looks of days mean, in as many lines as they need.
class LegendPainter {
 public:
  /// All outlive the painter.
  LegendPainter(HDC context, HFONT font, const std::vector<platform::YearLegendEntry>& entries);

  /// 0 without entries.
  [[nodiscard]] double HeightFor(double width) const;
  void Paint(const year_engine::Area& area, const YearColors& colors) const;

 private:
  /// Calls `place` with each entry and its area, from the top left of a legend of that width on.
  void Place(
      double width,
      const std::function<void(const platform::YearLegendEntry&, const year_engine::Area&)>& place) const;

  HDC context_;
  HFONT font_;
  const std::vector<platform::YearLegendEntry>& entries_;
  double text_height_;
};

}  // namespace ferrowind::win32
