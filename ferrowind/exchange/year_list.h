#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {

/// What a list says of one year of one currency.
struct YearList {
  int year = 0;
  /// Ascending, each day once, and all of the year.
  std::vector<ListedDay> days;

  /// Null when the list does not name the day.
  [[nodiscard]] const ListedDay* Find(const platform::Date& date) const;
  /// Whether the list names so many days of the weekday (1 Sunday to 7 Saturday) that it must mean to name
  /// all its days that are closed: `kEnough` of them. Otherwise nothing is said of weekends.
  [[nodiscard]] bool ListsWeekday(int weekday) const;

  static constexpr std::size_t kEnough = 40;
};

/// The first and the last year that are wanted.
struct WantedYears {
  int first = 0;
  int last = 0;
};

/// A list by years, and what was left out of it.
struct SortedList {
  /// Ascending; one for each wanted year.
  std::vector<YearList> years;
  /// For people, a sentence without a full stop each.
  std::vector<std::string> remarks;
};

/// Sorts what `list` says of the currency of the code `currency`. Days of other currencies are left out and
/// counted, and so are those of other years than `wanted`. Without `wanted` all days must be of one year, so
/// that the first days of the next one are not taken for a whole year. A day that stands there twice is taken
/// once, by its first name; one that is closed and open at once, a wanted year of which there is no day and a
/// list without any day are a `ListError`.
[[nodiscard]] SortedList SortByYear(const DayList& list, std::string_view currency,
                                    const std::optional<WantedYears>& wanted);

}  // namespace ferrowind::exchange
