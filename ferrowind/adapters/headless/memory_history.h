#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/memory_tables.h"

namespace ferrowind::headless {

/// A row as a call found it and as it left it; nothing where it was not there.
template <typename Row>
struct MemoryChange {
  std::optional<Row> before;
  std::optional<Row> after;
};

/// The rows that a call changed, by their keys.
struct MemoryChanges {
  /// Calendar and day, counted from 1, of calendars that were there before and after.
  using DayKey = std::pair<CalendarKey, std::int32_t>;

  std::map<DayKey, MemoryChange<MemoryDay>> days;
  std::map<CalendarKey, MemoryChange<std::vector<MemoryDay>>> calendars;
  std::map<std::int32_t, MemoryChange<MemoryRule>> rules;
  std::map<std::int32_t, MemoryChange<MemoryBook>> books;
  std::map<std::int32_t, MemoryChange<MemoryCurrency>> currencies;
  std::map<ConventionKey, MemoryChange<MemoryConvention>> conventions;

  /// The days of a calendar that was made or removed count, too.
  [[nodiscard]] std::int32_t CountRows() const;
};

[[nodiscard]] MemoryChanges ChangesBetween(const MemoryTables& before, const MemoryTables& after);
/// Has the rows of `changes` in `tables` as they were before. What refers to a row is the caller's concern.
void PutBack(const MemoryChanges& changes, MemoryTables& tables);
/// Whether all rows of `changes` are in `tables` as the call left them.
[[nodiscard]] bool AreAsLeft(const MemoryChanges& changes, const MemoryTables& tables);

/// A call that returned 0.
struct MemoryEntry {
  std::int32_t id = 0;
  std::string moment;
  std::string user;
  std::string procedure;
  /// Numbers, or empty when the call was for no calendar.
  platform::Value currency;
  platform::Value year;
  /// A JSON object.
  std::string parameters;
  MemoryChanges changes;
};

/// In the order of the calls; their numbers count from 1.
using MemoryHistory = std::vector<MemoryEntry>;

}  // namespace ferrowind::headless
