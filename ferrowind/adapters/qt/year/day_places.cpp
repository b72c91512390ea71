#include "ferrowind/adapters/qt/year/day_places.h"

namespace ferrowind::qt {

DayPlaces::DayPlaces(const YearMetrics& metrics, const QRectF& cell) {
  const year_engine::DayPlaces places(metrics.measures,
                                      {cell.left(), cell.top(), cell.width(), cell.height()});
  number = ToQt(places.number);
  letter = ToQt(places.letter);
  mark = ToQt(places.mark);
  bar = ToQt(places.bar);
}

}  // namespace ferrowind::qt
