#pragma once

#include "ferrowind/adapters/qt/year/year_pages.h"

namespace ferrowind::qt {

/// As `platform::YearView::PrintPages`.
[[nodiscard]] bool PrintOnChosenPrinter(const YearPages& pages);

}  // namespace ferrowind::qt
