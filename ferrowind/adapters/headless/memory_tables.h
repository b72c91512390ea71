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
};

/// A day of a calendar; an ordinary working day has type 1 and no rule.
struct MemoryDay {
  std::int32_t type = 1;
  std::optional<std::int32_t> rule;
  /// Text or empty, as all values below are of their type or empty.
  platform::Value comment;
};

struct MemoryRule {
  std::string name;
  platform::Value comment;
  std::int32_t type = 0;
  /// Of a dated rule: date, and its month and day, int16.
  platform::Value date;
  platform::Value month;
  platform::Value day;
  /// Of a weekday rule: int16.
  platform::Value weekday;
  /// int16: 2 removed, 4 restored.
  platform::Value removal_mark;
};

/// The tables of a calendar database. A copy of them is what a transaction works on.
struct MemoryTables {
  std::vector<MemoryCurrency> currencies;
  std::map<std::int32_t, std::string> holiday_types;
  std::map<std::int32_t, MemoryRule> rules;
  /// By currency and year: one entry per day of the year, in order.
  std::map<std::pair<std::int32_t, std::int32_t>, std::vector<MemoryDay>> calendars;
  /// The weekday that a week begins with, 1 Sunday to 7 Saturday.
  std::int32_t first_day = 1;
  /// Rows of tables that a test's own procedures keep, by table name.
  std::map<std::string, std::vector<std::vector<platform::Value>>> others;
};

}  // namespace ferrowind::headless
