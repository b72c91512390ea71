#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

QString ToQt(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

QDate ToQt(const platform::Date& date) { return {date.Year(), date.Month(), date.Day()}; }

platform::Date FromQt(const QDate& date) { return {date.year(), date.month(), date.day()}; }

}  // namespace ferrowind::qt
