#pragma once

#include <string>

namespace ferrowind::platform {

/// Names in the operator's language.
class Locale {
 public:
  virtual ~Locale() = default;
  /// The full name of the month 1 (January) to 12, standing alone ("May"). Any other number is the failure
  /// Invalid argument.
  [[nodiscard]] virtual std::string MonthName(int month) const = 0;
  /// The full name of the weekday 1 (Sunday) to 7 (Saturday). Any other number is the failure Invalid
  /// argument.
  [[nodiscard]] virtual std::string WeekdayName(int weekday) const = 0;
};

}  // namespace ferrowind::platform
