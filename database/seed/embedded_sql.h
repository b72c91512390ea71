#pragma once

#include <string_view>

/// The texts of the files that fill a new calendar database of any engine, as the build found them.
namespace ferrowind::embedded {

/// Types, the built-in rule and the setting, which every database holds.
extern const std::string_view kBaseData;
/// The currencies, which every database holds.
extern const std::string_view kCurrencies;

}  // namespace ferrowind::embedded
