#pragma once

#include <random>
#include <vector>

#include "ferrowind/business_days/prepared_year.h"

namespace ferrowind::business_days {

using RandomNumbers = std::mt19937;

/// Some of the years from 2019 to 2028, most of them with weekends (not all on Saturday and Sunday) and some
/// holidays, and now and then a month or a year that is closed altogether.
[[nodiscard]] std::vector<PreparedYear> RandomYears(RandomNumbers& random);

/// A day from 2018 to 2029.
[[nodiscard]] std::chrono::sys_days RandomDay(RandomNumbers& random);

}  // namespace ferrowind::business_days
