#pragma once

#include <array>
#include <optional>

#include "ferrowind/adapters/year_engine/year_days.h"
#include "ferrowind/adapters/year_engine/year_measures.h"

namespace ferrowind::year_engine {

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
  YearLayout(const YearDays& days, const YearMeasures& measures, Reading reading, const Size& room);

  /// Whether each calendar has a row in every month.
  [[nodiscard]] bool HasRows() const { return calendars_ > 1; }
  [[nodiscard]] const Size& WholeSize() const { return size_; }
  /// Whether all of it has found its place in the room.
  [[nodiscard]] bool FitsHeight() const { return fits_height_; }

  // Months count from 1, calendars from 0.

  [[nodiscard]] Area MonthArea(int month) const;
  [[nodiscard]] Area TitleArea(int month) const;
  /// Above the columns of weekdays, 0 to 6 in the order of reading; or, with rows, above the days 1 to 31,
  /// with the room of their numbers above that.
  [[nodiscard]] Area HeaderArea(int month, int column) const;
  [[nodiscard]] Area NumberArea(int month, int column) const;
  [[nodiscard]] Area CaptionArea(int month, int calendar) const;
  [[nodiscard]] Area NoteArea(int month, int calendar) const;
  [[nodiscard]] Area CellArea(const YearPlace& place) const;
  /// The weekday, 1 Sunday to 7 Saturday, of a column of weekdays.
  [[nodiscard]] int WeekdayOf(int column) const { return (reading_.first_weekday - 1 + column) % 7 + 1; }
  ///@{
  /// The days of the year of a month.
  [[nodiscard]] int FirstDayOf(int month) const { return MonthOf(month).days_before + 1; }
  [[nodiscard]] int LastDayOf(int month) const {
    return MonthOf(month).days_before + MonthOf(month).day_count;
  }
  ///@}

  /// The day there; nothing between the days.
  [[nodiscard]] std::optional<YearPlace> PlaceAt(const Spot& spot) const;
  /// The month whose block is there, 1 to 12.
  [[nodiscard]] std::optional<int> MonthAt(const Spot& spot) const;

 private:
  struct MonthOfYear {
    /// The day of the year before its first one.
    int days_before = 0;
    int day_count = 0;
    /// The column of its first day among the weekdays.
    int first_column = 0;
  };

  [[nodiscard]] const MonthOfYear& MonthOf(int month) const {
    return months_[static_cast<std::size_t>(month) - 1];
  }
  [[nodiscard]] Size LeastBlock() const;
  [[nodiscard]] bool TryColumns(int columns, const Size& room) const;
  void Settle(int columns, const Size& room);
  [[nodiscard]] Spot OriginOf(int month) const;
  [[nodiscard]] int RowsOfDays() const { return HasRows() ? calendars_ : 6; }
  [[nodiscard]] int ColumnsOfDays() const { return HasRows() ? 31 : 7; }
  /// What stands there in the order of reading.
  [[nodiscard]] Area Placed(const Area& area) const;
  /// The place that is so far right and below of the month's corner.
  [[nodiscard]] Area InMonth(int month, double x, double y, const Size& size) const;
  /// The cell at a row and column of the month's days.
  [[nodiscard]] Area At(int month, int row, int column) const;

  Reading reading_;
  YearMeasures measures_;
  int calendars_ = 0;
  int columns_ = 1;
  bool fits_height_ = true;
  Size size_;
  Size cell_;
  Size block_;
  std::array<MonthOfYear, 12> months_;
};

}  // namespace ferrowind::year_engine
