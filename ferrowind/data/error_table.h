#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ferrowind {

/// The positions of the numbered messages in the error table.
namespace error_index {
inline constexpr std::int32_t kCannotAddHoliday = 0;
inline constexpr std::int32_t kCannotRemoveHoliday = 1;
inline constexpr std::int32_t kCannotLoadHolidays = 2;
inline constexpr std::int32_t kCannotLoadHolidayTypes = 3;
inline constexpr std::int32_t kCannotLoadFirstWeekday = 4;
inline constexpr std::int32_t kCannotLoadCurrency = 5;
inline constexpr std::int32_t kCannotLoadCalendars = 6;
inline constexpr std::int32_t kCannotEditMultiRows = 7;
inline constexpr std::int32_t kCannotDefineHolidayType = 8;
inline constexpr std::int32_t kCannotDefineWeekday = 9;
inline constexpr std::int32_t kDuplicateHolidayName = 10;
inline constexpr std::int32_t kCannotRestoreHoliday = 11;
}  // namespace error_index

/// A numbered message. The display uses neither the title nor the flag.
struct ErrorEntry {
  std::string title;
  std::string message;
  std::int32_t flag = 0;
};

using ErrorTable = std::array<ErrorEntry, 12>;

/// Writes the twelve messages into the table.
void FillErrorTable(ErrorTable& table);

}  // namespace ferrowind
