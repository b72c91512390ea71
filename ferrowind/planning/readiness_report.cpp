#include "ferrowind/planning/readiness_report.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "ferrowind/almanac/review.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/planning/database_content.h"
#include "ferrowind/planning/record_text.h"

namespace ferrowind::planning {
namespace {

using almanac::Readiness;
using almanac::ReviewHorizon;
using almanac::YearReadiness;

/// Whether what stands in the calendar could not be traded on.
bool IsUnprepared(const YearReadiness& year) {
  return year.readiness == Readiness::kNotPrepared || year.readiness == Readiness::kWeekendsOnly;
}

/// The rules and the years.
std::string BasisOf(const DatabaseContent& content, const ReviewHorizon& horizon,
                    const ReadinessReport& report) {
  std::string basis;
  for (const int year : {horizon.running_year, horizon.last_year, report.FirstYear(), report.LastYear()}) {
    basis += std::to_string(year) + ' ';
  }
  AppendRecords(*content.rules, 0, content.rules->RowCount(), basis);
  return basis;
}

}  // namespace

bool ReadinessReport::IsUrgent(const YearReadiness& year) const {
  const bool is_due =
      year.year == today.Year() || (year.year == NextYear() && ReviewHorizon::NextYearIsUrgent(today));
  return is_due && IsUnprepared(year);
}

int ReadinessReport::CountUrgent(int year) const {
  return static_cast<int>(
      std::count_if(currencies.begin(), currencies.end(), [&](const CurrencyReadiness& currency) {
        return std::any_of(currency.years.begin(), currency.years.end(),
                           [&](const YearReadiness& of) { return of.year == year && IsUrgent(of); });
      }));
}

std::vector<CalendarKey> ReadinessReport::ToPrepare(int year) const {
  std::vector<CalendarKey> calendars;
  for (const CurrencyReadiness& currency : currencies) {
    for (const YearReadiness& of : currency.years) {
      const bool changes = IsUnprepared(of) || of.readiness == Readiness::kDiffers;
      if (of.year == year && of.can_be_planned && changes) calendars.emplace_back(currency.currency.id, year);
    }
  }
  return calendars;
}

ReadinessReport ReadinessReader::Read(const platform::Date& today) {
  const DatabaseContent content = LoadContent();
  const auto horizon = ReviewHorizon::Of(today, {});
  ReadinessReport report{today, {}, {}};
  std::string basis = BasisOf(content, horizon, report);
  if (basis != basis_) judged_.clear();
  basis_ = std::move(basis);
  std::erase_if(judged_, [&](const auto& judged) { return !content.written.contains(judged.first); });

  std::optional<almanac::RuleDirectory> rules;
  report.review = ReviewContent(content, [&](std::int32_t id, const WrittenCurrency& currency) {
    Judged& judged = judged_[id];
    if (std::string written = currency.Text(); written != judged.written) {
      if (!rules) rules = content.ReadRules();
      almanac::ReviewedCurrency reviewed = currency.Read(tables_);
      reviewed.called = currency.called;
      judged.judgement =
          almanac::JudgeCurrency(reviewed, *rules, tables_, horizon, report.FirstYear(), report.LastYear());
      judged.written = std::move(written);
    }
    report.currencies.push_back({content.currencies.FindOrNumber(id), judged.judgement.years});
    return judged.judgement.findings;
  });
  std::sort(report.currencies.begin(), report.currencies.end(),
            [](const auto& left, const auto& right) { return left.currency.code < right.currency.code; });
  return report;
}

}  // namespace ferrowind::planning
