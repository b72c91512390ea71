#pragma once

#include <string_view>

namespace ferrowind::embedded {

/// The market's conventions that come with the program, as the build found them in
/// database/seed/market_conventions.txt.
extern const std::string_view kMarketConventions;

}  // namespace ferrowind::embedded
