#pragma once

#include <optional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::platform {

/// What a typed text means as a date.
struct FERROWIND_EXPORT DateReading {
  /// Nothing when the text is no date.
  std::optional<Date> date = {};
  /// Why the text is none, for the operator; empty when there is a date.
  std::string refusal = {};
};

/// Names and dates in the operator's language.
class FERROWIND_EXPORT Locale {
 public:
  virtual ~Locale() = default;
  /// The full name of the month 1 (January) to 12, standing alone ("May"). Any other number is the failure
  /// Invalid argument.
  [[nodiscard]] virtual std::string MonthName(int month) const = 0;
  /// The full name of the weekday 1 (Sunday) to 7 (Saturday). Any other number is the failure Invalid
  /// argument.
  [[nodiscard]] virtual std::string WeekdayName(int weekday) const = 0;

  /// A date as it is shown where there is little room: in the short form of the language, with all
  /// four digits of the year and the weekday's short name ("14/04/2028 Fri").
  [[nodiscard]] virtual std::string DateText(const Date& date) const = 0;
  /// A date in words, as the language writes it ("14 April 2028").
  [[nodiscard]] virtual std::string LongDateText(const Date& date) const = 0;
  /// The same with its weekday ("Friday 14 April 2028").
  [[nodiscard]] virtual std::string LongDayText(const Date& date) const = 0;
  /// Reads a date as people of that language write it, and as `DateText` and ISO 8601 do; one without a year
  /// is in `year`. A text that could be two dates, or none, is refused: it is never completed, cut or
  /// corrected.
  [[nodiscard]] virtual DateReading ReadDate(const std::string& text, int year) const = 0;
};

}  // namespace ferrowind::platform
