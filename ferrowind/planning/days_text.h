#pragma once

#include <string_view>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"

namespace ferrowind::planning {

/// The days of a calendar that have a rule, from a text as `CldGetContent` gives it: one behind the other,
/// each "Day1,TID1,ID2,length:Comment", where the length counts the bytes of the comment. They come out
/// ascending, whatever their order in the text. Any other text is a `platform::Failure`.
[[nodiscard]] std::vector<almanac::MarkedDay> ReadDaysText(std::string_view text);

}  // namespace ferrowind::planning
