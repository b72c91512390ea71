#include "ferrowind/views/planning/readiness_words.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ferrowind {
namespace {

using almanac::Finding;
using almanac::FindingLevel;
using almanac::Readiness;
using almanac::YearReadiness;
using planning::CurrencyReadiness;
using planning::ReadinessReport;
using platform::CellMark;
using platform::CellTone;
using platform::TableCell;

std::string Counted(int count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

TableCell WordAndShape(const YearReadiness& year) {
  switch (year.readiness) {
    case Readiness::kNotPrepared:
      return {"Not prepared", CellMark::kMissing};
    case Readiness::kWeekendsOnly:
      return {"Weekends only", CellMark::kPartly};
    case Readiness::kDiffers:
      return {"Differs by " + Counted(year.differing_days, "day", "days"), CellMark::kDiffers};
    case Readiness::kNotCompared:
      return {"Not compared", CellMark::kNote};
    case Readiness::kPrepared:
      return {year.unpublished.empty() ? "Prepared" : "Prepared as published", CellMark::kPrepared};
    case Readiness::kEnded:
      return {"No money then", CellMark::kNone, CellTone::kQuiet};
  }
  return {};
}

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
  if (year == report_.today.Year()) return number + ", this year";
  if (year == report_.NextYear()) return number + ", next year";
  return number;
}

TableCell ReadinessWords::Cell(const CurrencyReadiness& currency, const YearReadiness& year) const {
  TableCell cell = WordAndShape(year);
  if (report_.IsUrgent(year)) cell.tone = CellTone::kLoud;
  cell.description = Sentence(currency, year);
  return cell;
}

std::string ReadinessWords::Sentence(const CurrencyReadiness& currency, const YearReadiness& year) const {
  const std::string calendar = currency.currency.code + " " + std::to_string(year.year);
  std::string sentence;
  switch (year.readiness) {
    case Readiness::kNotPrepared:
      sentence = calendar + (year.has_calendar ? " has no closed day." : " has no calendar.");
      break;
    case Readiness::kWeekendsOnly:
      sentence = calendar + " is closed on weekends only.";
      if (year.differing_days != 0) {
        sentence += " " + Counted(year.differing_days, "day is", "days are") + " not as planned.";
      }
      break;
    case Readiness::kDiffers:
      sentence = calendar + ": " + Counted(year.differing_days, "day is", "days are") + " not as planned.";
      break;
    case Readiness::kNotCompared:
      sentence = calendar + " has holidays, and no book that could be used tells whether they are right.";
      break;
    case Readiness::kPrepared:
      sentence = calendar + " is as planned.";
      break;
    case Readiness::kEnded:
      return planning::EndOfMoney(currency.currency) + ".";
  }
  if (year.excepted_days != 0) {
    sentence +=
        " " + Counted(year.excepted_days, "working day by exception has", "working days by exception have") +
        " a reason.";
  }
  for (const std::string& unpublished : year.unpublished) sentence += " " + unpublished + ".";
  return sentence;
}

std::string ReadinessWords::UrgentIn(int year) const {
  const int count = report_.CountUrgent(year);
  if (count == 0) return {};
  return Counted(count, "currency has", "currencies have") + " no holidays in " + std::to_string(year);
}

std::string ReadinessWords::Urgent() const {
  const std::string now = UrgentIn(report_.today.Year());
  const std::string next = UrgentIn(report_.NextYear());
  std::string urgent;
  if (!now.empty()) urgent = now + ", the running year.";
  if (next.empty()) return urgent;
  const int days = platform::Date(report_.NextYear(), 1, 1).Serial() - report_.today.Serial();
  return urgent + (urgent.empty() ? "" : " ") + next + ", which begins " +
         (days == 1 ? std::string("tomorrow") : "in " + std::to_string(days) + " days") + ".";
}

std::string ReadinessWords::Summary() const {
  if (report_.currencies.empty()) return "There is no calendar and no rule book.";
  const int this_year = report_.today.Year();
  const Share now = ShareOf(report_, this_year);
  const Share next = ShareOf(report_, report_.NextYear());
  return "Prepared: " + std::to_string(now.prepared) + " of " + Counted(now.all, "currency", "currencies") +
         " for " + std::to_string(this_year) + ", " + std::to_string(next.prepared) + " of " +
         std::to_string(next.all) + " for " + std::to_string(report_.NextYear()) + ".";
}

std::string ReadinessWords::FindingsTitle() const {
  if (report_.review.findings.empty()) return "The review has found nothing";
  std::array<int, 3> counts{};
  for (const Finding& finding : report_.review.findings) ++counts[static_cast<std::size_t>(finding.level)];
  std::string title;
  const auto add = [&](FindingLevel level, const char* one, const char* many) {
    const int count = counts[static_cast<std::size_t>(level)];
    if (count != 0) title += (title.empty() ? "" : ", ") + Counted(count, one, many);
  };
  add(FindingLevel::kError, "error", "errors");
  add(FindingLevel::kWarning, "warning", "warnings");
  add(FindingLevel::kNote, "note", "notes");
  return "Findings of the review: " + title;
}

TableCell ReadinessWords::LevelCell(FindingLevel level) {
  switch (level) {
    case FindingLevel::kError:
      return {"Error", CellMark::kError, CellTone::kLoud};
    case FindingLevel::kWarning:
      return {"Warning", CellMark::kWarning};
    case FindingLevel::kNote:
      return {"Note", CellMark::kNote, CellTone::kQuiet};
  }
  return {};
}

}  // namespace ferrowind
