#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/adapters/win32/grid/grid_content.h"

namespace ferrowind::win32 {

/// The rows as lines of cells between tabs, `with_headers` below a line of the columns' captions. Group rows
/// are left out where there are records among the rows.
[[nodiscard]] std::wstring CopyOfRows(const GridContent& content, const std::vector<std::int16_t>& columns,
                                      const std::vector<std::uint32_t>& rows, bool with_headers);

}  // namespace ferrowind::win32
