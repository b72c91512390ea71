#pragma once

#include <QString>

#include "ferrowind/adapters/qt/year/year_pages.h"

namespace ferrowind::qt {

// Both replace the file as a whole; one that cannot be written is a failure that names it and says why.

/// On sheets of A4.
void SaveAsPdf(const YearPages& pages, const QString& path);
/// As one picture, as wide as a sheet of A4 and as high as its content.
void SaveAsPicture(const YearPages& pages, const QString& path);

}  // namespace ferrowind::qt
