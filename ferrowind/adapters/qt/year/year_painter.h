#pragma once

#include <QLocale>
#include <QPainter>
#include <QRectF>
#include <QStringList>

#include "ferrowind/adapters/qt/year/year_colors.h"
#include "ferrowind/adapters/qt/year/year_layout.h"
#include "ferrowind/adapters/year_engine/year_cursor.h"

namespace ferrowind::qt {

/// Paints the months of a year, on a screen or on paper.
class YearPainter {
 public:
  /// All must outlive the painter.
  YearPainter(const year_engine::YearDays& days, const YearMetrics& metrics, const YearLayout& layout,
              const YearColors& colors, const QLocale& locale);

  /// What is on a screen only; nothing on paper.
  struct Cursor {
    const year_engine::YearCursor* days = nullptr;
    bool has_focus = false;
  };
  /// Paints what of the year is in `exposed`.
  void Paint(QPainter& painter, const QRectF& exposed, const Cursor& cursor) const;

 private:
  void PaintMonth(QPainter& painter, int month, const QRectF& exposed, const Cursor& cursor) const;
  void PaintTitle(QPainter& painter, int month) const;
  void PaintWeekdays(QPainter& painter, int month) const;
  /// As long as all seven fit, in the order of reading.
  [[nodiscard]] QStringList WeekdayNames() const;
  void PaintDayNumbers(QPainter& painter, int month) const;
  void PaintRowTexts(QPainter& painter, int month) const;
  void PaintGround(QPainter& painter, const year_engine::YearPlace& place, bool is_selected) const;
  void PaintDay(QPainter& painter, const year_engine::YearPlace& place) const;
  void PaintInRow(QPainter& painter, const year_engine::YearPlace& place) const;
  void PaintToday(QPainter& painter, const year_engine::YearPlace& place) const;
  void PaintCurrent(QPainter& painter, const year_engine::YearPlace& place, bool has_focus) const;

  [[nodiscard]] const platform::YearCalendar& Calendar(int position) const;
  [[nodiscard]] int FirstDayOf(int month) const;
  [[nodiscard]] int LastDayOf(int month) const;

  const year_engine::YearDays& days_;
  const YearMetrics& metrics_;
  const YearLayout& layout_;
  const YearColors& colors_;
  const QLocale& locale_;
};

}  // namespace ferrowind::qt
