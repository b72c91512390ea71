#pragma once

#include <memory>
#include <vector>

#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind {

/// A window's store for the sort keys or grouping keys of its grid while the grid's rows are replaced. The
/// references keep the keys alive after the grid has dropped them.
using KeyStore = std::vector<std::shared_ptr<const platform::GridKey>>;

/// Replaces what the stores hold by the grid's keys of now, the key objects themselves.
void SaveGridKeys(platform::Grid& grid, KeyStore& sort_store, KeyStore& group_store);

/// Adds the stored keys to the grid, each at its own recorded position and the last one first, and refreshes
/// the grid once so that they take effect. The stores keep their references.
void RestoreGridKeys(platform::Grid& grid, const KeyStore& sort_store, const KeyStore& group_store);

}  // namespace ferrowind
