#include "ferrowind/adapters/year_engine/year_cursor.h"

#include <algorithm>
#include <utility>

namespace ferrowind::year_engine {
namespace {

using platform::Date;

int DaysInMonth(int year, int month) {
  return month == 12 ? 31 : Date(year, month + 1, 1).DayOfYear() - Date(year, month, 1).DayOfYear();
}

}  // namespace

void YearCursor::Enter(const YearDays& before, const YearDays& after) {
  const std::vector<YearPlace> were_selected = Selected();
  const std::optional<YearPlace> was_current = current_;
  year_ = after.Year();
  day_count_ = after.DayCount();
  calendar_count_ = after.CalendarCount();
  selected_.assign(static_cast<std::size_t>(calendar_count_) * static_cast<std::size_t>(day_count_), false);
  current_.reset();
  if (calendar_count_ == 0) return;

  const auto calendar_of = [&](const YearPlace& place) {
    return after.PositionOf(before.Content().calendars[static_cast<std::size_t>(place.calendar)].key);
  };
  if (!was_current) {
    GoTo({0, after.Content().today.value_or(1)});
    return;
  }
  const int years = after.Year() - before.Year();
  // The day itself is still worth something when its calendar is gone.
  GoTo({calendar_of(*was_current).value_or(0), before.DateOf(was_current->day).AddYears(years).DayOfYear()});
  if (years == 0) SelectAgain(were_selected, calendar_of);
}

bool YearCursor::IsSelected(const YearPlace& place) const { return selected_[IndexOf(place)]; }

std::vector<YearPlace> YearCursor::Selected() const {
  std::vector<YearPlace> places;
  for (std::size_t i = 0; i < selected_.size(); ++i) {
    const int index = static_cast<int>(i);
    if (selected_[i]) places.push_back({index / day_count_, index % day_count_ + 1});
  }
  return places;
}

void YearCursor::GoTo(const YearPlace& place) {
  std::fill(selected_.begin(), selected_.end(), false);
  selected_[IndexOf(place)] = true;
  current_ = place;
  anchor_ = place;
}

void YearCursor::ExtendTo(const YearPlace& place, bool adds) {
  if (!adds) std::fill(selected_.begin(), selected_.end(), false);
  SelectRange(anchor_, place);
  current_ = place;
}

void YearCursor::Toggle(const YearPlace& place) {
  selected_[IndexOf(place)].flip();
  current_ = place;
  anchor_ = place;
}

void YearCursor::PointAt(const YearPlace& place) {
  if (!IsSelected(place)) {
    GoTo(place);
  } else {
    current_ = place;
  }
}

YearPlace YearCursor::After(YearStep step) const {
  const YearPlace here = *current_;
  const auto days_later = [&](int days) {
    const int day = here.day + days;
    return day >= 1 && day <= day_count_ ? YearPlace{here.calendar, day} : here;
  };
  const auto calendars_below = [&](int calendars) {
    return YearPlace{std::clamp(here.calendar + calendars, 0, calendar_count_ - 1), here.day};
  };
  const Date date = Date(year_, 1, 1).AddDays(here.day - 1);
  switch (step) {
    case YearStep::kDayBefore:
      return days_later(-1);
    case YearStep::kDayAfter:
      return days_later(1);
    case YearStep::kUp:
      return calendar_count_ == 1 ? days_later(-7) : calendars_below(-1);
    case YearStep::kDown:
      return calendar_count_ == 1 ? days_later(7) : calendars_below(1);
    case YearStep::kMonthBefore:
      return InMonth(-1);
    case YearStep::kMonthAfter:
      return InMonth(1);
    case YearStep::kMonthStart:
      return days_later(1 - date.Day());
    case YearStep::kMonthEnd:
      return days_later(DaysInMonth(year_, date.Month()) - date.Day());
    case YearStep::kYearStart:
      return {here.calendar, 1};
    case YearStep::kYearEnd:
      return {here.calendar, day_count_};
  }
  return here;
}

std::size_t YearCursor::IndexOf(const YearPlace& place) const {
  return static_cast<std::size_t>(place.calendar * day_count_ + place.day - 1);
}

void YearCursor::SelectRange(const YearPlace& from, const YearPlace& to) {
  const auto [first_day, last_day] = std::minmax({from.day, to.day});
  const auto [first_calendar, last_calendar] = std::minmax({from.calendar, to.calendar});
  for (int calendar = first_calendar; calendar <= last_calendar; ++calendar) {
    for (int day = first_day; day <= last_day; ++day) selected_[IndexOf({calendar, day})] = true;
  }
}

void YearCursor::SelectAgain(const std::vector<YearPlace>& places,
                             const std::function<std::optional<int>(const YearPlace&)>& calendar_of) {
  std::vector<bool> again(selected_.size(), false);
  for (const YearPlace& place : places) {
    if (const auto calendar = calendar_of(place)) again[IndexOf({*calendar, place.day})] = true;
  }
  // With nothing to select again, the current day is selected.
  if (std::find(again.begin(), again.end(), true) != again.end()) selected_ = std::move(again);
}

YearPlace YearCursor::InMonth(int months_later) const {
  const Date date = Date(year_, 1, 1).AddDays(current_->day - 1);
  const int month = date.Month() + months_later;
  if (month < 1 || month > 12) return *current_;
  return {current_->calendar,
          Date(year_, month, std::min(date.Day(), DaysInMonth(year_, month))).DayOfYear()};
}

}  // namespace ferrowind::year_engine
