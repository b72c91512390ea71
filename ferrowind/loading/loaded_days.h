#pragma once

#include <string>
#include <vector>

#include "ferrowind/business_days/calendar_set.h"
#include "ferrowind/business_days/market_conventions.h"
#include "ferrowind/export.h"

namespace ferrowind::loading {

/// What a database says of business days at a moment. It never changes, and any number of threads may ask.
struct FERROWIND_EXPORT LoadedDays {
  business_days::CalendarSet calendars;
  /// Those that come with the program, amended by those of the database.
  business_days::MarketConventions conventions;
};

/// What is another than it was, the codes of currencies ascending.
struct FERROWIND_EXPORT DayChanges {
  std::vector<std::string> added;
  /// Days of theirs are others, or more or fewer years are prepared.
  std::vector<std::string> changed;
  std::vector<std::string> removed;
  bool has_other_conventions = false;

  [[nodiscard]] bool Any() const {
    return has_other_conventions || !added.empty() || !changed.empty() || !removed.empty();
  }
};

}  // namespace ferrowind::loading
