#pragma once

#include <string>

#include "ferrowind/adapters/win32/year/year_pages.h"

namespace ferrowind::win32 {

// Both replace the file as a whole; one that cannot be written is a failure that names it and says why. Paths
// are UTF-8.

/// On sheets of A4.
void SaveAsPdf(const YearPages& pages, const std::string& path);
/// As one picture, as wide as a sheet of A4 and as high as its content.
void SaveAsPicture(const YearPages& pages, const std::string& path);

}  // namespace ferrowind::win32
