#pragma once

#include <string>

#include "ferrowind/platform/services/locale.h"

namespace ferrowind::headless {

/// English names.
class HeadlessLocale : public platform::Locale {
 public:
  [[nodiscard]] std::string MonthName(int month) const override;
  [[nodiscard]] std::string WeekdayName(int weekday) const override;
};

}  // namespace ferrowind::headless
