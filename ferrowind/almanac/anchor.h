#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "ferrowind/platform/values/date.h"

/// What a date expression (date_expression.h) counts from. Weekdays are numbered as `platform::Date::Weekday`
/// does: 1 Sunday to 7 Saturday.
namespace ferrowind::almanac {

/// No offset of an expression is larger, before or after.
inline constexpr int kLargestOffset = 366;

/// The same day of each year; 02-29 is in leap years only.
struct FixedDate {
  int month = 1;
  int day = 1;
  bool operator==(const FixedDate&) const = default;
};

/// One day once.
struct SingleDate {
  platform::Date date;
  bool operator==(const SingleDate&) const = default;
};

enum class Church : std::uint8_t { kWestern, kOrthodox };

struct EasterDate {
  Church church = Church::kWestern;
  /// Days after Easter Sunday, before it when negative; at most `kLargestOffset`.
  int offset = 0;
  bool operator==(const EasterDate&) const = default;
};

struct NthWeekday {
  static constexpr int kLast = 0;
  /// 1 to 5, or `kLast`.
  int ordinal = 1;
  int weekday = 1;
  int month = 1;
  bool operator==(const NthWeekday&) const = default;
};

enum class Equinox : std::uint8_t { kVernal, kAutumnal };

/// The day on which the equinox falls by clocks that are `utc_offset_minutes` ahead of UTC.
struct EquinoxDate {
  Equinox equinox = Equinox::kVernal;
  /// -12 to +14 hours.
  int utc_offset_minutes = 0;
  bool operator==(const EquinoxDate&) const = default;
};

/// Each date of a named table (date_table.h).
struct TableDate {
  std::string table;
  /// As in `EasterDate`.
  int offset = 0;
  bool operator==(const TableDate&) const = default;
};

/// Every week on one weekday.
struct EveryWeekday {
  int weekday = 1;
  bool operator==(const EveryWeekday&) const = default;
};

/// The working days whose neighbours are both holidays.
struct BetweenHolidays {
  bool operator==(const BetweenHolidays&) const = default;
};

/// Dates that nobody has announced yet: of no year is it known whether, and where, there is one.
struct UnknownDate {
  bool operator==(const UnknownDate&) const = default;
};

using Anchor = std::variant<FixedDate, SingleDate, EasterDate, NthWeekday, EquinoxDate, TableDate,
                            EveryWeekday, BetweenHolidays, UnknownDate>;

}  // namespace ferrowind::almanac
