#pragma once

#include <chrono>
#include <string>

#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// A year of a calendar as it is loaded.
struct FERROWIND_EXPORT PreparedYear {
  /// 1900 to 3000.
  std::chrono::year year{};
  /// A character a day, 365 or 366 of them from 1 January on: '1' closed, '0' open.
  std::string days;

  /// The same year with the same days.
  friend bool operator==(const PreparedYear&, const PreparedYear&) = default;
};

}  // namespace ferrowind::business_days
