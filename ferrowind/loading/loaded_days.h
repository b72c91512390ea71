#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "ferrowind/business_days/calendar_set.h"
#include "ferrowind/business_days/market_conventions.h"
#include "ferrowind/export.h"
#include "ferrowind/loading/day_names.h"

namespace ferrowind::loading {

/// What a database says of business days at a moment. It never changes, and any number of threads may ask.
struct FERROWIND_EXPORT LoadedDays {
  /// Those of all currencies that have prepared years.
  business_days::CalendarSet calendars;
  /// Those that come with the program, amended by those of the database.
  business_days::MarketConventions conventions;
  /// Nothing unless the loader was asked for them.
  DayNames names = {};
  /// The codes of the currencies that have calendars, by their numbers in ISO 4217.
  std::map<std::int32_t, std::string> codes = {};
};

/// What is another than it was, the codes of currencies ascending.
struct FERROWIND_EXPORT DayChanges {
  /// Currencies that had no prepared year before.
  std::vector<std::string> added;
  /// Days of theirs are others, or more or fewer years are prepared.
  std::vector<std::string> changed;
  /// Currencies that have no prepared year any more.
  std::vector<std::string> removed;
  /// Whether days to spot, or what dollar holidays mean, are others than before.
  bool has_other_conventions = false;

  /// False when the databases said the same both times.
  [[nodiscard]] bool Any() const {
    return has_other_conventions || !added.empty() || !changed.empty() || !removed.empty();
  }
};

}  // namespace ferrowind::loading
