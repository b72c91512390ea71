#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// How far from its trade date, or from its spot date, a trade settles.
struct FERROWIND_EXPORT Tenor {
  /// What is counted, and from which day on.
  enum class Unit : std::uint8_t {
    /// The next day on which the pair can be settled.
    kOvernight,
    /// One such day later; for pairs that settle in two days, the spot date.
    kTomorrowNext,
    kSpot,
    /// The next day on which the pair can be settled after spot.
    kSpotNext,
    /// `count` of them after spot.
    kDays,
    kWeeks,
    kMonths,
    kYears,
    /// The `count`th third Wednesday of March, June, September and December after spot.
    kImm,
  };

  /// `SPOT` unless said.
  Unit unit = Unit::kSpot;
  /// 1 with the units that have none.
  int count = 1;

  /// "ON", "SPOT", "1W", "3M", "IMM2". Precondition: it is one that `ReadTenor` could have read.
  [[nodiscard]] std::string Text() const;

  /// Same unit and count: 12 months and a year are two tenors.
  friend bool operator==(const Tenor&, const Tenor&) = default;
};

/// Reads "ON", "TN", "SN", "SW" (a week), also with a stroke between their letters, "SPOT" or "SP", a number
/// from 1 on with D, W, M or Y up to a hundred years, and "IMM1" to "IMM4", in letters of any case. Anything
/// else is the failure InvalidArgument, which says what is expected.
[[nodiscard]] FERROWIND_EXPORT Tenor ReadTenor(std::string_view text);

/// Whether `ReadTenor` could have read it: a unit that there is, and as many of it as are allowed.
[[nodiscard]] FERROWIND_EXPORT bool IsTenor(const Tenor& tenor);

}  // namespace ferrowind::business_days
