#pragma once

#include <QMimeData>
#include <memory>
#include <vector>

#include "ferrowind/adapters/qt/grid/grid_content.h"

namespace ferrowind::qt {

/// Rows as text with tabs between the cells and as an HTML table, as spreadsheets and word processors take
/// them. `rows` are 0-based; `columns` are column indices, from left to right. Group rows are left out where
/// there are data rows, so that what is pasted is a table.
[[nodiscard]] std::unique_ptr<QMimeData> CopyOfRows(const GridContent& content,
                                                    const std::vector<std::int16_t>& columns,
                                                    const std::vector<int>& rows, bool with_headers);

}  // namespace ferrowind::qt
