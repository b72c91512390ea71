#pragma once

#include <QLocale>
#include <QString>

namespace ferrowind::gui {

/// For as long as it lives the locale of everything that is made.
class DefaultLocale {
 public:
  explicit DefaultLocale(const char* name) { QLocale::setDefault(QLocale(QLatin1String(name))); }
  ~DefaultLocale() { QLocale::setDefault(before_); }
  DefaultLocale(const DefaultLocale&) = delete;
  DefaultLocale& operator=(const DefaultLocale&) = delete;

 private:
  QLocale before_;
};

}  // namespace ferrowind::gui
