#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// Where a date goes that falls on a closed day, by the names that the ISDA definitions and FpML give them.
enum class FERROWIND_EXPORT Convention : std::uint8_t {
  /// It stays.
  kUnadjusted,
  /// To the next open day.
  kFollowing,
  /// To the next open day, but to the last one before where that would be in another month.
  kModifiedFollowing,
  /// As `kModifiedFollowing`; the middle of a month (behind the 15th) is not passed either.
  kModifiedFollowingBimonthly,
  /// To the last open day before.
  kPreceding,
  /// To the last open day before, but to the next one where that would be in another month.
  kModifiedPreceding,
  /// To the next open day from a Sunday or Monday, to the last one before from any other day.
  kNearest,
};

/// "Following", "ModifiedFollowing" and so on.
[[nodiscard]] FERROWIND_EXPORT std::string_view NameOf(Convention convention);

/// The convention of that name, whatever its case, or of the usual abbreviation ("F", "MF", "MFBM", "P",
/// "MP", "N", "NONE"); empty when there is none.
[[nodiscard]] FERROWIND_EXPORT std::optional<Convention> ConventionNamed(std::string_view name);

}  // namespace ferrowind::business_days
