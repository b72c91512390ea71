#pragma once

#include <string>
#include <string_view>

#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {

/// A table with a header line. The column of dates is called "date"; "name" (or holiday, description,
/// summary, title), "type" (or kind) and "currency" (or ccy, code) may be there in any order, and other
/// columns are told and left out. Without a header the first column has the dates, and the second, if there
/// is one, the names. What cannot be read is a `ListError` that tells each line.
[[nodiscard]] DayList ReadCsvList(std::string_view text);

/// With the columns date, weekday, name, type and currency; lines end by CR LF, as RFC 4180 has it.
[[nodiscard]] std::string WriteCsvList(const DayList& list);

}  // namespace ferrowind::exchange
