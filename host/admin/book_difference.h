#pragma once

#include <string>
#include <vector>

#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::host {

/// What makes one book of the other, a line for each line of their texts that is removed ("- ") or added
/// ("+ "), in the order of the texts. A rule that has another place among the rules is removed and added.
/// Columns do not count. Each line can be shown on a terminal.
[[nodiscard]] std::vector<std::string> DifferenceOf(const almanac::RuleBook& before,
                                                    const almanac::RuleBook& after);

}  // namespace ferrowind::host
