#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/finding.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/readiness_report.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// A finding of the review as the board lists it: of one currency, of several of which the same is to be
/// said, or of the whole database.
struct FindingLine {
  almanac::FindingLevel level = almanac::FindingLevel::kNote;
  almanac::FindingSubject subject = almanac::FindingSubject::kNoBook;
  /// Each once, by code; none when the line is about the whole database.
  std::vector<planning::Currency> currencies = {};
  /// Nothing when the line is about all years.
  std::optional<int> year = {};
  /// Of several currencies it counts them and has their codes.
  std::string sentence = {};
  /// Tells this line from the others of a report, and stays what it is while the line is about the same.
  std::string key = {};
};

/// The findings of the review of `report`, the worst first. What the review says of several currencies alike,
/// such as that a year has no calendar, is one line, in the place of the first of them; and so are the days
/// of a calendar without holidays: what is missing there is not this or that day.
[[nodiscard]] std::vector<FindingLine> FindingLines(const platform::Platform& platform,
                                                    const planning::ReadinessReport& report);

/// "Findings of the review: 1 error, 2 warnings, 3 notes": as many as there are lines.
[[nodiscard]] std::string FindingsTitle(const platform::Platform& platform,
                                        const std::vector<FindingLine>& lines);

/// Whom the line is about, for a column: "EUR", "26 currencies"; "" for the whole database.
[[nodiscard]] std::string CurrenciesOf(const platform::Platform& platform, const FindingLine& line);

/// The codes and names of several currencies, a list; "" for a line of one.
[[nodiscard]] std::string NamesOfSeveral(const FindingLine& line);

}  // namespace ferrowind
