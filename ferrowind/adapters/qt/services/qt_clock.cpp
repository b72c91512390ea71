#include "ferrowind/adapters/qt/services/qt_clock.h"

#include <QDate>

#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

platform::Date QtClock::Today() const { return FromQt(QDate::currentDate()); }

}  // namespace ferrowind::qt
