#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {

/// An entry of a list as it is written, whatever the form of the list.
struct ListEntry {
  std::size_t line = 0;
  /// As written_date.h reads it.
  std::string_view date;
  std::string_view name = {};
  /// As `KindNamed` reads it.
  std::string_view type = {};
  std::string_view currency = {};
};

/// Appends the day of the entry to `list`, or what is wrong with it to `faults`.
void TakeEntry(const ListEntry& entry, DayList& list, ListFaults& faults);

}  // namespace ferrowind::exchange
