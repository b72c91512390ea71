#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::headless {

struct MemoryCurrency {
  std::int32_t id = 0;
  std::string code;
  /// 0 for money, 1 for everything else.
  std::int16_t type = 0;
  std::string name;
  /// Date or empty, as all values below are of their type or empty.
  platform::Value last_day = {};

  friend bool operator==(const MemoryCurrency&, const MemoryCurrency&) = default;
};

/// A day of a calendar; an ordinary working day has type 1 and no rule.
struct MemoryDay {
  std::int32_t type = 1;
  std::optional<std::int32_t> rule;
  /// Text.
  platform::Value comment;

  friend bool operator==(const MemoryDay&, const MemoryDay&) = default;
};

struct MemoryRule {
  std::string name;
  platform::Value comment = {};
  std::int32_t type = 0;
  /// Of a dated rule: date, and its month and day, int16.
  platform::Value date = {};
  platform::Value month = {};
  platform::Value day = {};
  /// Of a weekday rule: int16.
  platform::Value weekday = {};
  /// int16: 2 removed, 4 restored.
  platform::Value removal_mark = {};

  friend bool operator==(const MemoryRule&, const MemoryRule&) = default;
};

/// A recurring rule of a book; the comment and the name of a moved day are texts.
struct MemoryRecurrence {
  std::string name;
  std::int32_t type = 0;
  std::string expression;
  platform::Value comment;
  platform::Value moved_name;

  friend bool operator==(const MemoryRecurrence&, const MemoryRecurrence&) = default;
};

struct MemoryBook {
  std::string publisher;
  std::string document;
  /// Null when the book holds for all years.
  platform::Value from_year;
  std::vector<MemoryRecurrence> rules;

  friend bool operator==(const MemoryBook&, const MemoryBook&) = default;
};

/// Of a pair the days to spot, of a currency whether a holiday of the dollar stops the count.
struct MemoryConvention {
  platform::Value spot_days;
  platform::Value dollar_stops;

  friend bool operator==(const MemoryConvention&, const MemoryConvention&) = default;
};

/// The numbers of a pair's currencies, ascending; of one currency twice its number.
using ConventionKey = std::pair<std::int32_t, std::int32_t>;

/// Currency and year.
using CalendarKey = std::pair<std::int32_t, std::int32_t>;

/// The tables of a calendar database. A copy of them is what a transaction works on.
struct MemoryTables {
  std::vector<MemoryCurrency> currencies;
  std::map<std::int32_t, std::string> holiday_types;
  std::map<std::int32_t, MemoryRule> rules;
  /// One entry per day of the year, in order.
  std::map<CalendarKey, std::vector<MemoryDay>> calendars;
  /// By currency.
  std::map<std::int32_t, MemoryBook> books;
  std::map<ConventionKey, MemoryConvention> conventions;
  /// The weekday that a week begins with, 1 Sunday to 7 Saturday.
  std::int32_t first_day = 1;
  /// Rows of tables that a test's own procedures keep, by table name.
  std::map<std::string, std::vector<std::vector<platform::Value>>> others;
};

}  // namespace ferrowind::headless
