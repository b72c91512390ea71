#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/content/content_table.h"

namespace ferrowind::chain {

/// The version of the schema from which on the entries of a history are chained.
inline constexpr std::int64_t kVersionOfChains = 5;

/// A table that exists during an upgrade to version 5 of the schema alone: the places of older entries in
/// their chains, and their hashes.
[[nodiscard]] const content::Table& ChainedEntryTable();

/// Its rows for the history of `source`, whose entries are not chained yet.
[[nodiscard]] std::vector<content::Row> ChainedEntries(content::Source& source);

}  // namespace ferrowind::chain
