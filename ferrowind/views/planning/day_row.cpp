#include "ferrowind/views/planning/day_row.h"

#include <cstdint>

#include "ferrowind/platform/values/value.h"

namespace ferrowind {

bool GoToRowOf(platform::Grid& days, const platform::Date& day) {
  const auto is_of_day = [&](std::int32_t row) {
    return days.CellValue(row, kDateColumn) == platform::Value(day);
  };
  const std::int32_t rows = days.RowCount();
  // Where the days are neither sorted otherwise nor grouped.
  const std::int32_t likely = day.DayOfYear();
  if (likely <= rows && is_of_day(likely)) {
    days.SetCurrentRow(likely);
    return true;
  }
  for (std::int32_t row = 1; row <= rows; ++row) {
    if (!is_of_day(row)) continue;
    days.SetCurrentRow(row);
    return true;
  }
  return false;
}

}  // namespace ferrowind
