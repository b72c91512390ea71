#pragma once

#include <string>
#include <string_view>

#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {

/// A list of objects with the member "date" and perhaps "name", "type" and "currency", or of dates alone; or
/// an object with such a list as its member "days", "holidays" or "events". Other members of a day are told
/// and left out. What cannot be read is a `ListError` that tells each line.
[[nodiscard]] DayList ReadJsonList(std::string_view text);

/// A list of objects, one a line.
[[nodiscard]] std::string WriteJsonList(const DayList& list);

}  // namespace ferrowind::exchange
