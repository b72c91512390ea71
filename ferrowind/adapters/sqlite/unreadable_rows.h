#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// A sentence without a full stop for each row of the table whose values cannot be read because one is longer
/// than a database's may be; it names the row by its key. Tells of the first hundred.
[[nodiscard]] std::vector<std::string> UnreadableRows(const DatabaseHandle& database,
                                                      const std::string& table);

}  // namespace ferrowind::sqlite
