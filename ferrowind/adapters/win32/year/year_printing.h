#pragma once

#include "ferrowind/adapters/win32/base/window_thread.h"
#include "ferrowind/adapters/win32/year/year_pages.h"

namespace ferrowind::win32 {

/// As `platform::YearView::PrintPages`.
[[nodiscard]] bool PrintOnChosenPrinter(WindowThread& thread, const YearPages& pages);

}  // namespace ferrowind::win32
