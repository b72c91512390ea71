#pragma once

#include <cstddef>
#include <string>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::planning {

/// Appends to `text` what tells the rows from the one at `first` to the one before `last` from any others: of
/// two texts of rows with the same fields, those of different rows differ. Positions are those of
/// `platform::RecordSet::BookmarkAt`.
void AppendRecords(const platform::RecordSet& rows, std::size_t first, std::size_t last, std::string& text);

}  // namespace ferrowind::planning
