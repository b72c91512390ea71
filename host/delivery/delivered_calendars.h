#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::host {

/// Is called with the number of calendars that are finished, and of all; what it throws ends the work.
using CreationObserver = std::function<void(std::size_t done, std::size_t total)>;

/// The calendars that a new database gets: weekends, and the dated holidays of each currency and year.
class DeliveredCalendars {
 public:
  /// Reads the form of database/seed/calendars.txt: a date a line ("EUR 2026-01-01 New Year's Day"), the
  /// dates of a calendar together; empty lines and lines that begin with "#" are skipped. Any other line is a
  /// failure that names it.
  explicit DeliveredCalendars(std::string_view text);
  /// Those that this program carries.
  [[nodiscard]] static DeliveredCalendars Embedded();

  /// Creates the calendars in the calling thread's database through the component's procedures, which must
  /// know the currencies and the rules by name. A call that fails or does not return 0 is a failure that
  /// names the calendar and the day; what was created before it stays.
  void Create(const CreationObserver& observe = {}) const;

 private:
  struct DatedHoliday {
    platform::Date date;
    std::string rule;
  };
  struct Calendar {
    std::string currency;
    int year;
    std::vector<DatedHoliday> holidays;
  };

  void AddLine(std::string_view line);

  std::vector<Calendar> calendars_;
};

}  // namespace ferrowind::host
