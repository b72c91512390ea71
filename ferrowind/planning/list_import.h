#pragma once

#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/exchange/icalendar_format.h"
#include "ferrowind/exchange/year_list.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/planned_calendar.h"

namespace ferrowind::planning {

/// The file of a list, and what somebody wants of it.
struct ListFile {
  /// UTF-8.
  std::string path;
  Currency currency;
  int year = 0;
  /// Days that are closed already get the names of the list.
  bool takes_names = false;
};

/// A list that a calendar is to be made as.
struct ListImport {
  CalendarKey calendar;
  /// What the list is called: the name of its file without the folder.
  std::string source;
  exchange::YearList list;
  bool takes_names = false;
  /// What is left out of the list or stays as it is; a sentence each, for people.
  std::vector<std::string> remarks;
};

/// Reads the list, in the format that it seems to have, and looks whether it can be matched with the calendar
/// of the calling thread's database. What is wrong in it is a `exchange::ListError` with all its lines; fails
/// with a `platform::Failure` when the file cannot be read, and as database_call.h says.
[[nodiscard]] ListImport PrepareImport(const almanac::DateTables& tables, const ListFile& file,
                                       const exchange::ICalendarFormat& icalendar);

/// Matches a calendar with the list.
[[nodiscard]] Preparer ByList(ListImport import);

}  // namespace ferrowind::planning
