#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <vector>

#include "ferrowind/platform/toolkit/year_view.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::year_engine {

/// A day on show: the position of its calendar, from 0 on, and the day of the year, from 1 on.
struct YearPlace {
  int calendar = 0;
  int day = 1;

  friend auto operator<=>(const YearPlace&, const YearPlace&) = default;
};

/// A checked content of a year view, looked into day by day.
class YearDays {
 public:
  /// A content that is not as year_view.h describes it is the failure Invalid argument.
  explicit YearDays(platform::YearContent content = {});

  [[nodiscard]] const platform::YearContent& Content() const { return content_; }
  [[nodiscard]] int Year() const { return content_.year; }
  /// 365 or 366.
  [[nodiscard]] int DayCount() const { return platform::DaysInYear(content_.year); }
  [[nodiscard]] int CalendarCount() const { return static_cast<int>(content_.calendars.size()); }
  /// The position of the calendar of that key, from 0 on.
  [[nodiscard]] std::optional<int> PositionOf(const std::string& key) const;

  /// Nothing for a day that is not on show.
  [[nodiscard]] std::optional<YearPlace> PlaceOf(const platform::YearCell& cell) const;
  [[nodiscard]] platform::YearCell CellAt(const YearPlace& place) const;

  // Calendars count from 0, days from 1. Precondition: they are on show.

  /// The look of the day; of an ordinary one as a default-made one.
  [[nodiscard]] const platform::DayLook& LookOf(int calendar, int day) const;
  [[nodiscard]] const std::string& DescriptionOf(int calendar, int day) const;
  [[nodiscard]] platform::Date DateOf(int day) const;

 private:
  /// Null for an ordinary day.
  [[nodiscard]] const platform::YearDay* Find(int calendar, int day) const;

  platform::YearContent content_;
  /// For each calendar and day the place in its list plus one; 0 for ordinary days.
  std::vector<std::uint16_t> places_;
};

}  // namespace ferrowind::year_engine
