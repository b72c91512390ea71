#include "ferrowind/adapters/qt/year/year_texts.h"

#include "ferrowind/adapters/qt/dates/long_date.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

QString TextOfDay(const year_engine::YearDays& days, const year_engine::YearPlace& place,
                  const QLocale& locale) {
  const QString separator = QStringLiteral(", ");
  QString text = LongDay(ToQt(days.DateOf(place.day)), locale);
  const QString description = ToQt(days.DescriptionOf(place.calendar, place.day));
  if (!description.isEmpty()) text += separator + description;
  if (days.CalendarCount() == 1) return text;
  return ToQt(days.Content().calendars[static_cast<std::size_t>(place.calendar)].caption) + separator + text;
}

}  // namespace ferrowind::qt
