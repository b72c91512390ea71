#pragma once

#include <string>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::host {

struct YearRange {
  int first = 0;
  int last = 0;
};

/// The year that `text` names: four digits. Anything else is an `ArgumentError`.
[[nodiscard]] int ReadYear(const std::string& text);

/// The years of "2028", or of "2028..2030" or "2028-2030", the last one included. Anything else is an
/// `ArgumentError`, and so is a range that runs backwards.
[[nodiscard]] YearRange ReadYears(const std::string& text);

/// The day of "2028-04-14". Anything else is an `ArgumentError`.
[[nodiscard]] platform::Date ReadDay(const std::string& text);

}  // namespace ferrowind::host
