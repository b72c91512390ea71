#pragma once

#include <QFont>
#include <QLocale>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <array>
#include <optional>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::qt {

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
  /// The width of a line that is as thick as a pixel of an ordinary screen.
  qreal line = 0;
  /// How thick the frame of the current day is.
  qreal frame = 0;
  /// Of the numbers of days; the widest of them.
  qreal number_width = 0;
  qreal number_ascent = 0;
  /// Of the letters beside the numbers of days, without what letters have above and below; the largest.
  QSizeF letter_size;
  /// Of the marks of days, which are as high as wide.
  qreal mark_size = 0;
  QSizeF least_cell;
  QSizeF widest_cell;
  qreal title_height = 0;
  qreal header_height = 0;
  /// Beside the days of a row; 0 without rows.
  qreal caption_width = 0;
  qreal note_width = 0;
  qreal gap = 0;
};

/// Where the months and days of a year stand: in as many columns as make the days largest.
class YearLayout {
 public:
  struct Reading {
    /// 1 Sunday to 7 Saturday.
    int first_weekday = 2;
    bool is_right_to_left = false;
    /// Whether what is higher than its room is scrolled, and not put on further pages.
    bool scrolls = true;
  };

  YearLayout() = default;
  /// `room` is what there is; the year takes more where its parts would become too small.
  YearLayout(const year_engine::YearDays& days, const YearMetrics& metrics, Reading reading,
             const QSizeF& room);

  /// Whether each calendar has a row in every month.
  [[nodiscard]] bool HasRows() const { return calendars_ > 1; }
  [[nodiscard]] QSizeF Size() const { return size_; }
  /// Whether all of it has found its place in the room.
  [[nodiscard]] bool FitsHeight() const { return fits_height_; }

  // Months count from 1, calendars from 0.

  [[nodiscard]] QRectF MonthRect(int month) const;
  [[nodiscard]] QRectF TitleRect(int month) const;
  /// Above the columns of weekdays, 0 to 6 in the order of reading; or, with rows, above the days 1 to 31,
  /// with the room of their numbers above that.
  [[nodiscard]] QRectF HeaderRect(int month, int column) const;
  [[nodiscard]] QRectF NumberRect(int month, int column) const;
  [[nodiscard]] QRectF CaptionRect(int month, int calendar) const;
  [[nodiscard]] QRectF NoteRect(int month, int calendar) const;
  [[nodiscard]] QRectF CellRect(const year_engine::YearPlace& place) const;
  /// The weekday, 1 Sunday to 7 Saturday, of a column of weekdays.
  [[nodiscard]] int WeekdayOf(int column) const { return (reading_.first_weekday - 1 + column) % 7 + 1; }

  /// The day there; nothing between the days.
  [[nodiscard]] std::optional<year_engine::YearPlace> PlaceAt(const QPointF& point) const;
  /// The month whose block is there, 1 to 12.
  [[nodiscard]] std::optional<int> MonthAt(const QPointF& point) const;

 private:
  struct MonthOfYear {
    /// The day of the year before its first one.
    int days_before = 0;
    int day_count = 0;
    /// The column of its first day among the weekdays.
    int first_column = 0;
  };

  [[nodiscard]] QSizeF LeastBlock() const;
  [[nodiscard]] bool TryColumns(int columns, const QSizeF& room) const;
  void Settle(int columns, const QSizeF& room);
  [[nodiscard]] QPointF OriginOf(int month) const;
  [[nodiscard]] int RowsOfDays() const { return HasRows() ? calendars_ : 6; }
  [[nodiscard]] int ColumnsOfDays() const { return HasRows() ? 31 : 7; }
  [[nodiscard]] QRectF Placed(const QRectF& rect) const;
  /// The cell at a row and column of the month's days.
  [[nodiscard]] QRectF At(int month, int row, int column) const;

  Reading reading_;
  int calendars_ = 0;
  int columns_ = 1;
  bool fits_height_ = true;
  QSizeF size_;
  QSizeF cell_;
  QSizeF block_;
  qreal title_height_ = 0;
  qreal header_height_ = 0;
  qreal caption_width_ = 0;
  qreal note_width_ = 0;
  qreal gap_ = 0;
  QSizeF least_cell_;
  QSizeF widest_cell_;
  std::array<MonthOfYear, 12> months_;
};

}  // namespace ferrowind::qt
