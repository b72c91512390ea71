#pragma once

#include <QDate>
#include <QString>
#include <string>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::qt {

/// The UTF-8 text of the ports as Qt's text and back; NUL characters are kept, malformed bytes become U+FFFD.
[[nodiscard]] QString ToQt(const std::string& text);
[[nodiscard]] std::string FromQt(const QString& text);

[[nodiscard]] QDate ToQt(const platform::Date& date);
/// Precondition: `date` is valid and of the years 1 to 9999.
[[nodiscard]] platform::Date FromQt(const QDate& date);

}  // namespace ferrowind::qt
