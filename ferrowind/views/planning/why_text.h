#pragma once

#include <string>
#include <vector>

#include "ferrowind/planning/day_story.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind {

/// Why a day of a calendar of the currency `code` is what it is, a line for each thing that is known;
/// `changed` tells who gave it when, empty when nobody has changed it.
[[nodiscard]] std::string WhyText(const platform::Platform& platform, const std::string& code,
                                  const planning::DayStory& story, const std::string& changed);

/// The columns of the years around a day: its date, and the days of its rule where it has one that has.
[[nodiscard]] std::vector<platform::TableColumn> YearColumns(const platform::Platform& platform,
                                                             const planning::DayStory& story);
[[nodiscard]] std::vector<platform::TableRow> YearRows(const platform::Platform& platform,
                                                       const planning::DayStory& story,
                                                       const std::vector<planning::SameDay>& years);

}  // namespace ferrowind
