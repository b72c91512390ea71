#pragma once

#include <cstddef>
#include <vector>

#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// Which texts of the book are longer than a database stores (text_limits.h): a sentence without a full stop
/// for each. A year can be planned by such a book all the same. `lines` as `FaultsOf` takes them.
[[nodiscard]] std::vector<platform::Phrase> LengthFaultsOf(const RuleBook& book,
                                                           const std::vector<std::size_t>& lines = {});

}  // namespace ferrowind::almanac
