#include "ferrowind/views/planning/readiness_words.h"

#include <vector>

#include "ferrowind/data/said.h"

namespace ferrowind {
namespace {

using almanac::FindingLevel;
using almanac::Readiness;
using almanac::YearReadiness;
using planning::CurrencyReadiness;
using planning::ReadinessReport;
using platform::CellMark;
using platform::CellTone;
using platform::TableCell;

bool IsPrepared(const YearReadiness& year) { return year.readiness == Readiness::kPrepared; }

/// The currencies that are money in that year, and those of them that are prepared.
struct Share {
  int prepared = 0;
  int all = 0;
};

Share ShareOf(const ReadinessReport& report, int year) {
  Share share;
  for (const CurrencyReadiness& currency : report.currencies) {
    for (const YearReadiness& of : currency.years) {
      if (of.year != year || of.readiness == Readiness::kEnded) continue;
      ++share.all;
      share.prepared += IsPrepared(of) ? 1 : 0;
    }
  }
  return share;
}

}  // namespace

std::string ReadinessWords::YearCaption(int year) const {
  const std::string number = std::to_string(year);
  if (year == report_.today.Year()) return Said(platform_, "%1, this year", {number});
  if (year == report_.NextYear()) return Said(platform_, "%1, next year", {number});
  return number;
}

// Cells
// --------------------------------------------------------------------------------------------------------------------

TableCell ReadinessWords::Cell(const CurrencyReadiness& currency, const YearReadiness& year) const {
  TableCell cell = WordAndShape(year);
  if (report_.IsUrgent(year)) cell.tone = CellTone::kLoud;
  cell.description = Sentence(currency, year);
  return cell;
}

TableCell ReadinessWords::WordAndShape(const YearReadiness& year) const {
  switch (year.readiness) {
    case Readiness::kNotPrepared:
      return {Said(platform_, "Not prepared"), CellMark::kMissing};
    case Readiness::kWeekendsOnly:
      return {Said(platform_, "Weekends only"), CellMark::kPartly};
    case Readiness::kDiffers:
      return {SaidOfNumber(platform_, year.differing_days, "Differs by %n day", "Differs by %n days"),
              CellMark::kDiffers};
    case Readiness::kNotCompared:
      return {Said(platform_, "Not compared"), CellMark::kNote};
    case Readiness::kPrepared:
      return {Said(platform_, year.unpublished.empty() ? "Prepared" : "Prepared as published"),
              CellMark::kPrepared};
    case Readiness::kEnded:
      return {Said(platform_, "No money then"), CellMark::kNone, CellTone::kQuiet};
  }
  return {};
}

std::string ReadinessWords::Sentence(const CurrencyReadiness& currency, const YearReadiness& year) const {
  const std::vector<std::string> calendar = {planning::CalendarName(currency.currency, year.year)};
  std::string sentence;
  switch (year.readiness) {
    case Readiness::kNotPrepared:
      sentence =
          Said(platform_, year.has_calendar ? "%1 has no closed day." : "%1 has no calendar.", calendar);
      break;
    case Readiness::kWeekendsOnly:
      sentence = Said(platform_, "%1 is closed on weekends only.", calendar);
      if (year.differing_days != 0) {
        sentence += " " + SaidOfNumber(platform_, year.differing_days, "%n day is not as planned.",
                                       "%n days are not as planned.");
      }
      break;
    case Readiness::kDiffers:
      sentence = SaidOfNumber(platform_, year.differing_days, "%1: %n day is not as planned.",
                              "%1: %n days are not as planned.", calendar);
      break;
    case Readiness::kNotCompared:
      sentence = Said(platform_, "%1 has holidays, and no rule book tells whether they are right.", calendar);
      break;
    case Readiness::kPrepared:
      sentence = Said(platform_, "%1 is as planned.", calendar);
      break;
    case Readiness::kEnded:
      return Said(platform_, planning::EndOfMoney(currency.currency)) + ".";
  }
  if (year.excepted_days != 0) {
    sentence += " " + SaidOfNumber(platform_, year.excepted_days, "%n working day by exception has a reason.",
                                   "%n working days by exception have a reason.");
  }
  for (const platform::Phrase& unpublished : year.unpublished)
    sentence += " " + Said(platform_, unpublished) + ".";
  return sentence;
}

TableCell ReadinessWords::LevelCell(FindingLevel level) const {
  switch (level) {
    case FindingLevel::kError:
      return {Said(platform_, "Error"), CellMark::kError, CellTone::kLoud};
    case FindingLevel::kWarning:
      return {Said(platform_, "Warning"), CellMark::kWarning};
    case FindingLevel::kNote:
      return {Said(platform_, "Note"), CellMark::kNote, CellTone::kQuiet};
  }
  return {};
}

// All together
// -------------------------------------------------------------------------------------------------------------

std::string ReadinessWords::UrgentNow() const {
  const int year = report_.today.Year();
  const int count = report_.CountUrgent(year);
  if (count == 0) return {};
  return SaidOfNumber(platform_, count, "%n currency has no holidays in %1, the running year.",
                      "%n currencies have no holidays in %1, the running year.", {std::to_string(year)});
}

std::string ReadinessWords::UrgentSoon() const {
  const int year = report_.NextYear();
  const int count = report_.CountUrgent(year);
  if (count == 0) return {};
  const int days = platform::Date(year, 1, 1).Serial() - report_.today.Serial();
  const std::string when =
      days == 1 ? Said(platform_, "tomorrow") : SaidOfNumber(platform_, days, "in %n day", "in %n days");
  return SaidOfNumber(platform_, count, "%n currency has no holidays in %1, which begins %2.",
                      "%n currencies have no holidays in %1, which begins %2.", {std::to_string(year), when});
}

std::string ReadinessWords::Urgent() const {
  const std::string now = UrgentNow();
  const std::string soon = UrgentSoon();
  return now + (now.empty() || soon.empty() ? "" : " ") + soon;
}

std::string ReadinessWords::Summary() const {
  if (report_.currencies.empty()) return Said(platform_, "There is no calendar and no rule book.");
  const auto share_in = [this](int year) {
    const Share share = ShareOf(report_, year);
    return Said(platform_, "%1 of %2 currencies for %3",
                {std::to_string(share.prepared), std::to_string(share.all), std::to_string(year)});
  };
  return Said(platform_, "Prepared: %1, %2.", {share_in(report_.today.Year()), share_in(report_.NextYear())});
}

}  // namespace ferrowind
