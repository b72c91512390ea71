#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/chain/seal.h"
#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::chain {

/// What is wrong with the history of `source`, each a sentence: entries that are not as they were recorded or
/// do not follow each other, rows of the tables that are not what the entries made of them, and, with a seal,
/// that the history up to it is another than when it was taken. None for one that nobody has tampered with.
[[nodiscard]] std::vector<std::string> HistoryProblems(content::Source& source,
                                                       const std::optional<Seal>& seal);

}  // namespace ferrowind::chain
