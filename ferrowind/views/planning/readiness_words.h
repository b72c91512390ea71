#pragma once

#include <string>
#include <vector>

#include "ferrowind/almanac/finding.h"
#include "ferrowind/almanac/year_readiness.h"
#include "ferrowind/planning/readiness_report.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind {

/// A report on readiness in the operator's words and shapes.
class ReadinessWords {
 public:
  struct SaidFinding {
    const almanac::Finding& finding;
    std::string sentence;
  };

  /// Both must outlive this object.
  ReadinessWords(const platform::Platform& platform, const planning::ReadinessReport& report)
      : platform_(platform), report_(report) {}

  /// "2027, next year".
  [[nodiscard]] std::string YearCaption(int year) const;
  /// A cell of the board: a word and a shape, and in its description a sentence.
  [[nodiscard]] platform::TableCell Cell(const planning::CurrencyReadiness& currency,
                                         const almanac::YearReadiness& year) const;

  /// What cannot wait: currencies without days to trade on in the running year or, from September on, in the
  /// next. Empty when there are none.
  [[nodiscard]] std::string Urgent() const;
  /// How many currencies are prepared for the running and for the next year.
  [[nodiscard]] std::string Summary() const;

  /// Those of the review, where the days of a calendar without holidays are one finding: what is missing
  /// there is not this or that day.
  [[nodiscard]] std::vector<SaidFinding> Findings() const;
  /// "Findings of the review: 1 error, 2 warnings, 3 notes".
  [[nodiscard]] std::string FindingsTitle() const;
  [[nodiscard]] platform::TableCell LevelCell(almanac::FindingLevel level) const;

 private:
  /// What to say in place of a day that is missing in a calendar without holidays; "" for other findings.
  [[nodiscard]] std::string EmptyCalendar(const almanac::Finding& finding) const;
  [[nodiscard]] std::string Sentence(const planning::CurrencyReadiness& currency,
                                     const almanac::YearReadiness& year) const;
  [[nodiscard]] platform::TableCell WordAndShape(const almanac::YearReadiness& year) const;
  [[nodiscard]] std::string UrgentNow() const;
  [[nodiscard]] std::string UrgentSoon() const;

  const platform::Platform& platform_;
  const planning::ReadinessReport& report_;
};

}  // namespace ferrowind
