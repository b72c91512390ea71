#pragma once

#include <QDate>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/services/clock.h"

namespace ferrowind::qt {

class QtClock : public platform::Clock {
 public:
  [[nodiscard]] platform::Date Today() const override { return FromQt(QDate::currentDate()); }
};

}  // namespace ferrowind::qt
