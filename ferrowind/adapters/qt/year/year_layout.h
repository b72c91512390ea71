#pragma once

#include <QFont>
#include <QLocale>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <optional>

#include "ferrowind/adapters/year_engine/year_layout.h"

namespace ferrowind::qt {

[[nodiscard]] inline QRectF ToQt(const year_engine::Area& area) {
  return {area.left, area.top, area.width, area.height};
}
[[nodiscard]] inline QSizeF ToQt(const year_engine::Size& size) { return {size.width, size.height}; }

/// The fonts of a year, and the room that its parts need at least; in the units of the device.
struct YearMetrics {
  /// Of one calendar's months of weeks, or of months with a row for each of several calendars. `locale` names
  /// the months.
  YearMetrics(const year_engine::YearDays& days, const QFont& base, const QLocale& locale);

  QFont number_font;
  QFont title_font;
  QFont small_font;
  /// Of the letters beside the numbers of days.
  QFont letter_font;
  year_engine::YearMeasures measures;
  // The same in the framework's terms.
  qreal line = 0;
  qreal frame = 0;
  qreal number_width = 0;
  qreal number_ascent = 0;
  QSizeF letter_size;
  qreal mark_size = 0;
  QSizeF least_cell;
  qreal gap = 0;
};

/// Where the months and days of a year stand, as `year_engine::YearLayout` says.
class YearLayout {
 public:
  using Reading = year_engine::YearLayout::Reading;

  YearLayout() = default;
  /// `room` is what there is; the year takes more where its parts would become too small.
  YearLayout(const year_engine::YearDays& days, const YearMetrics& metrics, Reading reading,
             const QSizeF& room)
      : layout_(days, metrics.measures, reading, {room.width(), room.height()}) {}

  [[nodiscard]] bool HasRows() const { return layout_.HasRows(); }
  [[nodiscard]] QSizeF Size() const { return ToQt(layout_.WholeSize()); }
  [[nodiscard]] bool FitsHeight() const { return layout_.FitsHeight(); }
  [[nodiscard]] QRectF MonthRect(int month) const { return ToQt(layout_.MonthArea(month)); }
  [[nodiscard]] QRectF TitleRect(int month) const { return ToQt(layout_.TitleArea(month)); }
  [[nodiscard]] QRectF HeaderRect(int month, int column) const {
    return ToQt(layout_.HeaderArea(month, column));
  }
  [[nodiscard]] QRectF NumberRect(int month, int column) const {
    return ToQt(layout_.NumberArea(month, column));
  }
  [[nodiscard]] QRectF CaptionRect(int month, int calendar) const {
    return ToQt(layout_.CaptionArea(month, calendar));
  }
  [[nodiscard]] QRectF NoteRect(int month, int calendar) const {
    return ToQt(layout_.NoteArea(month, calendar));
  }
  [[nodiscard]] QRectF CellRect(const year_engine::YearPlace& place) const {
    return ToQt(layout_.CellArea(place));
  }
  [[nodiscard]] int WeekdayOf(int column) const { return layout_.WeekdayOf(column); }
  [[nodiscard]] std::optional<year_engine::YearPlace> PlaceAt(const QPointF& point) const {
    return layout_.PlaceAt({point.x(), point.y()});
  }
  [[nodiscard]] std::optional<int> MonthAt(const QPointF& point) const {
    return layout_.MonthAt({point.x(), point.y()});
  }

 private:
  year_engine::YearLayout layout_;
};

}  // namespace ferrowind::qt
