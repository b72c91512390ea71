#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::year_engine {

enum class YearStep : std::uint8_t {
  kDayBefore,
  kDayAfter,
  /// A week back, or to the calendar above.
  kUp,
  kDown,
  kMonthBefore,
  kMonthAfter,
  kMonthStart,
  kMonthEnd,
  kYearStart,
  kYearEnd,
};

/// The current and the selected days of a year view, and how the operator moves through them.
class YearCursor {
 public:
  /// As `platform::YearView::SetContent` says of the current and selected days. `before` is what the cursor
  /// was in, `after` what it is in from now on.
  void Enter(const YearDays& before, const YearDays& after);

  /// Nothing while there is no calendar.
  [[nodiscard]] std::optional<YearPlace> Current() const { return current_; }
  [[nodiscard]] bool IsSelected(const YearPlace& place) const;
  /// By calendar and day.
  [[nodiscard]] std::vector<YearPlace> Selected() const;

  // Precondition of all below: there is a calendar, and the places are on show.

  /// Makes the day the current and only selected one.
  void GoTo(const YearPlace& place);
  /// Makes it the current one and selects what lies between it and where the selection began; drops other
  /// selected days unless `adds`.
  void ExtendTo(const YearPlace& place, bool adds = false);
  /// Makes it the current one and selects it, or takes it out of the selection.
  void Toggle(const YearPlace& place);
  /// Makes it the current one and the only selected one, unless it is selected.
  void PointAt(const YearPlace& place);
  /// Where a step from the current day leads; at the edge of the year, nowhere else.
  [[nodiscard]] YearPlace After(YearStep step) const;

  [[nodiscard]] bool HasSelectionOf(const YearCursor& other) const { return selected_ == other.selected_; }

 private:
  [[nodiscard]] std::size_t IndexOf(const YearPlace& place) const;
  /// `calendar_of` finds the calendar of such a place among those of now.
  void SelectAgain(const std::vector<YearPlace>& places,
                   const std::function<std::optional<int>(const YearPlace&)>& calendar_of);
  void SelectRange(const YearPlace& from, const YearPlace& to);
  [[nodiscard]] YearPlace InMonth(int months_later) const;

  int year_ = 2000;
  int day_count_ = 366;
  int calendar_count_ = 0;
  std::optional<YearPlace> current_;
  YearPlace anchor_;
  /// For each calendar and day.
  std::vector<bool> selected_;
};

}  // namespace ferrowind::year_engine
