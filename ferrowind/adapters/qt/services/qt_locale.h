#pragma once

#include <QLocale>

#include "ferrowind/platform/services/locale.h"

namespace ferrowind::qt {

/// Names in the language of the system, or of any other Qt locale.
class QtLocale : public platform::Locale {
 public:
  explicit QtLocale(QLocale locale = QLocale::system()) : locale_(std::move(locale)) {}

  [[nodiscard]] std::string MonthName(int month) const override;
  [[nodiscard]] std::string WeekdayName(int weekday) const override;

 private:
  QLocale locale_;
};

}  // namespace ferrowind::qt
