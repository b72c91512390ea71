#pragma once

#include <QRectF>

#include "ferrowind/adapters/qt/year/year_layout.h"

namespace ferrowind::qt {

/// Where the parts of a day stand in its cell, as `year_engine::DayPlaces` says.
struct DayPlaces {
  DayPlaces(const YearMetrics& metrics, const QRectF& cell);

  /// The number is in its middle.
  QRectF number;
  /// A letter is in its middle.
  QRectF letter;
  /// Of a mark beside the number.
  QRectF mark;
  /// Of a bar below the number.
  QRectF bar;
};

}  // namespace ferrowind::qt
