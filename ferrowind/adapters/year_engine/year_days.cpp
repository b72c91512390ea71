#include "ferrowind/adapters/year_engine/year_days.h"

#include <algorithm>
#include <set>
#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::year_engine {
namespace {

using platform::YearCalendar;
using platform::YearContent;

constexpr std::size_t kDaysOfAnyYear = 366;

bool IsInYear(std::int16_t day, int day_count) { return day >= 1 && day <= day_count; }

bool IsWellFormed(const YearCalendar& calendar, int day_count) {
  if (calendar.key.empty()) return false;
  std::int16_t before = 0;
  for (const auto& day : calendar.days) {
    if (day.day_of_year <= before || !IsInYear(day.day_of_year, day_count)) return false;
    before = day.day_of_year;
  }
  return true;
}

bool IsWellFormed(const YearContent& content) {
  if (!platform::Date::IsValid(content.year, 1, 1)) return false;
  const int day_count = platform::DaysInYear(content.year);
  if (content.today && !IsInYear(*content.today, day_count)) return false;
  std::set<std::string> keys;
  for (const auto& calendar : content.calendars) {
    if (!IsWellFormed(calendar, day_count) || !keys.insert(calendar.key).second) return false;
  }
  return std::all_of(content.notes.begin(), content.notes.end(),
                     [&](const auto& note) { return IsInYear(note.day_of_year, day_count); });
}

}  // namespace

YearDays::YearDays(YearContent content) : content_(std::move(content)) {
  if (!IsWellFormed(content_)) throw platform::InvalidArgument();
  places_.resize(content_.calendars.size() * kDaysOfAnyYear);
  auto row = places_.begin();
  for (const auto& calendar : content_.calendars) {
    for (std::size_t i = 0; i < calendar.days.size(); ++i) {
      row[calendar.days[i].day_of_year - 1] = static_cast<std::uint16_t>(i + 1);
    }
    row += kDaysOfAnyYear;
  }
}

std::optional<int> YearDays::PositionOf(const std::string& key) const {
  const auto found = std::find_if(content_.calendars.begin(), content_.calendars.end(),
                                  [&](const YearCalendar& calendar) { return calendar.key == key; });
  if (found == content_.calendars.end()) return std::nullopt;
  return static_cast<int>(found - content_.calendars.begin());
}

std::optional<YearPlace> YearDays::PlaceOf(const platform::YearCell& cell) const {
  const auto calendar = PositionOf(cell.calendar);
  if (!calendar || !IsInYear(cell.day_of_year, DayCount())) return std::nullopt;
  return YearPlace{*calendar, cell.day_of_year};
}

platform::YearCell YearDays::CellAt(const YearPlace& place) const {
  return {content_.calendars[static_cast<std::size_t>(place.calendar)].key,
          static_cast<std::int16_t>(place.day)};
}

const platform::DayLook& YearDays::LookOf(int calendar, int day) const {
  static const platform::DayLook ordinary;
  const platform::YearDay* found = Find(calendar, day);
  return found == nullptr ? ordinary : found->look;
}

const std::string& YearDays::DescriptionOf(int calendar, int day) const {
  const platform::YearDay* found = Find(calendar, day);
  return found == nullptr ? content_.calendars[static_cast<std::size_t>(calendar)].ordinary
                          : found->description;
}

platform::Date YearDays::DateOf(int day) const {
  return platform::Date(content_.year, 1, 1).AddDays(day - 1);
}

const platform::YearDay* YearDays::Find(int calendar, int day) const {
  const auto position = static_cast<std::size_t>(calendar);
  const std::uint16_t place = places_[position * kDaysOfAnyYear + static_cast<std::size_t>(day) - 1];
  return place == 0 ? nullptr : &content_.calendars[position].days[place - 1U];
}

}  // namespace ferrowind::year_engine
