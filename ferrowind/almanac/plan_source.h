#pragma once

#include <cstdint>

namespace ferrowind::almanac {

/// What says how a calendar should be: the book of its currency, or a list that somebody has published.
enum class PlanSource : std::uint8_t { kRuleBook, kList };

}  // namespace ferrowind::almanac
