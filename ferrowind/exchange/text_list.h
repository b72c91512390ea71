#pragma once

#include <string>
#include <string_view>

#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {

/// A day a line: the date, and behind blanks, a comma, a semicolon or a dash the name, which may be missing.
/// Blank lines and those that begin with "#" mean nothing. What cannot be read is a `ListError` that tells
/// each line.
[[nodiscard]] DayList ReadTextList(std::string_view text);

/// The closed days alone, as the form has no word for others. Precondition: all are of one currency.
[[nodiscard]] std::string WriteTextList(const DayList& list);

}  // namespace ferrowind::exchange
