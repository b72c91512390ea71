#pragma once

#include <array>
#include <string>

#include "ferrowind/adapters/win32/controls/shapes.h"
#include "ferrowind/adapters/win32/year/year_colors.h"
#include "ferrowind/adapters/win32/year/year_fonts.h"
#include "ferrowind/adapters/year_engine/year_cursor.h"
#include "ferrowind/adapters/year_engine/year_layout.h"

namespace ferrowind::win32 {

/// Paints the months of a year, on a screen or on paper.
class YearPainter {
 public:
  /// What is painted.
  struct Subject {
    const year_engine::YearDays& days;
    const YearType& type;
    const year_engine::YearLayout& layout;
    const YearColors& colors;
  };
  /// What is on a screen only; nothing on paper.
  struct Cursor {
    const year_engine::YearCursor* days = nullptr;
    bool has_focus = false;
  };
  /// The year's corner is painted at `corner`. All outlive the painter.
  YearPainter(HDC context, const Subject& subject, const year_engine::Spot& corner);

  /// Paints those months that are in sight between these heights of the device.
  void Paint(double top, double bottom, const Cursor& cursor);

 private:
  void PaintMonth(int month, const Cursor& cursor);
  void PaintTitle(int month);
  void PaintWeekdays(int month);
  void PaintDayNumbers(int month);
  void PaintRowTexts(int month);
  void PaintGround(const year_engine::YearPlace& place, bool is_selected);
  void PaintDay(const year_engine::YearPlace& place, bool is_selected);
  void PaintInRow(const year_engine::YearPlace& place, bool is_selected);
  void PaintToday(const year_engine::YearPlace& place);
  void PaintCurrent(const year_engine::YearPlace& place, bool has_focus);

  [[nodiscard]] year_engine::Area Moved(const year_engine::Area& area) const;
  void Text(const year_engine::Area& area, HFONT font, COLORREF color, const std::wstring& text,
            UINT format) const;
  void Fill(const RECT& area, COLORREF color) const;
  void Frame(const RECT& area, LONG width, COLORREF color) const;

  HDC context_;
  const year_engine::YearDays& days_;
  const YearType& type_;
  const year_engine::YearLayout& layout_;
  const YearColors& colors_;
  year_engine::Spot corner_;
  Shapes shapes_;
  /// In the order of reading, as long as all seven fit.
  std::array<std::wstring, 7> weekdays_;
};

///@{
/// Draws the mark of a shape into a square, a bar at the foot of it and twice as wide, and the hatching of a
/// ground; nothing for other shapes.
void DrawDayMark(Shapes& shapes, const year_engine::Area& box, platform::DayShape shape, COLORREF color);
void DrawHatching(Shapes& shapes, const RECT& area, COLORREF color);
///@}

}  // namespace ferrowind::win32
