#include "ferrowind/adapters/qt/values/translated.h"

#include <QCoreApplication>

namespace ferrowind::qt {

QString Translated(const char* english) { return QCoreApplication::translate(kTextContext, english); }

}  // namespace ferrowind::qt
