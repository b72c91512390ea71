#include "ferrowind/business_days/convention.h"

#include <algorithm>
#include <array>
#include <compare>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::business_days {
namespace {

struct Names {
  Convention convention;
  std::string_view name;
  std::string_view abbreviation;
};

constexpr std::array kNames = {
    Names{Convention::kUnadjusted, "Unadjusted", "NONE"},
    Names{Convention::kFollowing, "Following", "F"},
    Names{Convention::kModifiedFollowing, "ModifiedFollowing", "MF"},
    Names{Convention::kModifiedFollowingBimonthly, "ModifiedFollowingBimonthly", "MFBM"},
    Names{Convention::kPreceding, "Preceding", "P"},
    Names{Convention::kModifiedPreceding, "ModifiedPreceding", "MP"},
    Names{Convention::kNearest, "Nearest", "N"},
};

bool AreSame(std::string_view left, std::string_view right) {
  return std::is_eq(platform::CompareIgnoringCase(left, right));
}

}  // namespace

std::string_view NameOf(Convention convention) {
  return std::ranges::find(kNames, convention, &Names::convention)->name;
}

std::optional<Convention> ConventionNamed(std::string_view name) {
  for (const Names& names : kNames) {
    if (AreSame(names.name, name) || AreSame(names.abbreviation, name)) return names.convention;
  }
  return std::nullopt;
}

}  // namespace ferrowind::business_days
