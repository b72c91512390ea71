#pragma once

#include <string>

#include "ferrowind/almanac/finding.h"
#include "ferrowind/almanac/year_readiness.h"
#include "ferrowind/planning/readiness_report.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind {

/// A report on readiness in the operator's words and shapes.
class ReadinessWords {
 public:
  /// Both must outlive this object.
  ReadinessWords(const platform::Platform& platform, const planning::ReadinessReport& report)
      : platform_(platform), report_(report) {}

  /// "2027, next year".
  [[nodiscard]] std::string YearCaption(int year) const;
  /// A cell of the board: a word and a shape, and in its description a sentence.
  [[nodiscard]] platform::TableCell Cell(const planning::CurrencyReadiness& currency,
                                         const almanac::YearReadiness& year) const;
  /// How the calendar stands, in sentences.
  [[nodiscard]] std::string Sentence(const planning::CurrencyReadiness& currency,
                                     const almanac::YearReadiness& year) const;

  /// What cannot wait: currencies without days to trade on in the running year or, from September on, in the
  /// next. Empty when there are none.
  [[nodiscard]] std::string Urgent() const;
  /// How many currencies are prepared for the running and for the next year.
  [[nodiscard]] std::string Summary() const;

  [[nodiscard]] platform::TableCell LevelCell(almanac::FindingLevel level) const;

 private:
  [[nodiscard]] platform::TableCell WordAndShape(const almanac::YearReadiness& year) const;
  [[nodiscard]] std::string UrgentNow() const;
  [[nodiscard]] std::string UrgentSoon() const;

  const platform::Platform& platform_;
  const planning::ReadinessReport& report_;
};

}  // namespace ferrowind
