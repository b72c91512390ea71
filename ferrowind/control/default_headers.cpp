#include "ferrowind/control/default_headers.h"

#include <span>

#include "ferrowind/control/grid_field_constancy.h"

namespace ferrowind {
namespace {

struct DefaultColumn {
  const char* local_name;
  const char* field_name;
  const char* caption;
  bool visible = true;
};

// The fields named STUB_ are supplied by no record set: the Calendars window computes them. Their numbers
// skip 1 and 3 by intention.
constexpr DefaultColumn kHeaders[] = {
    {"FullDate", "ODate", "Date"},
    {"HolidayType", "TID1", "Day type"},
    {"HolidayName", "Name1", "Holiday name"},
    {"Description", "Comment2", "Description"},
    {"Comment", "Comment", "Comment"},
    {"DayOfYear", "STUB_2", "Day of year"},
    {"DayOfMonth", "STUB_4", "Day of month"},
    {"Month", "STUB_5", "Month"},
    {"MonthName", "STUB_6", "Month name"},
};

constexpr DefaultColumn kHolidayHeaders[] = {
    {"Name", "Name1", "Name"},
    {"FullDate", "D1", "Full date"},
    {"HolidayType", "TID1", "Holiday type"},
    {"Comment", "Comment", "Comment"},
    {"DayOfMonth", "MD", "Day of month"},
    {"MonthOfYear", "MY", "Month of year"},
    {"ID_Holiday", "ID2", "ID holiday", false},
    {"DayOfWeek", "WD", "Day of week", false},
    {"Del", "Del", "Del", false},
};

void AddConstantColumns(GridFields& map, std::span<const DefaultColumn> columns) {
  for (const auto& column : columns) {
    map.Add(column.local_name, column.field_name, column.caption, column.visible);
  }
  for (const auto& column : columns) {
    GridFieldConstancy::SetConst(*map.LocalNames(column.local_name), true);
  }
}

}  // namespace

void AddDefaultHeaders(GridFields& map) { AddConstantColumns(map, kHeaders); }

void AddDefaultHolidayHeaders(GridFields& map) { AddConstantColumns(map, kHolidayHeaders); }

}  // namespace ferrowind
