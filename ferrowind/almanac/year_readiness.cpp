#include "ferrowind/almanac/year_readiness.h"

#include <cstddef>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::almanac {
namespace {

void Count(const ComparedDay& day, YearReadiness& year) {
  if (day.action == PlanAction::kKeep) return;
  const bool has_reason = day.action == PlanAction::kException && !platform::Trim(day.now->comment).empty();
  ++(has_reason ? year.excepted_days : year.differing_days);
}

void Compare(const Comparison& comparison, YearReadiness& year) {
  for (const ComparedDay& day : comparison.Days()) Count(day, year);
  if (year.differing_days == 0 && year.readiness != Readiness::kNotPrepared) {
    year.readiness = Readiness::kPrepared;
  } else if (year.readiness == Readiness::kNotCompared) {
    year.readiness = Readiness::kDiffers;
  }
  const YearPlan& plan = comparison.Plan();
  if (plan.Unknown().empty()) return;
  const std::vector<platform::Phrase> sentences = plan.Incomplete();
  for (std::size_t i = 0; i < sentences.size(); ++i) {
    if (!comparison.IsEntered(plan.Unknown()[i])) year.unpublished.push_back(sentences[i]);
  }
}

/// Before its calendar is looked at.
YearReadiness StartOf(const ReviewedCurrency& currency, int year) {
  YearReadiness readiness;
  readiness.year = year;
  if (currency.last_day && currency.last_day->Year() < year) {
    readiness.readiness = Readiness::kEnded;
  } else {
    readiness.can_be_planned = currency.book && currency.book->CanPlan(year);
  }
  return readiness;
}

}  // namespace

Readiness ReadinessByClosedDays(const CalendarContent& calendar) {
  bool has_closed = false;
  for (const MarkedDay& day : calendar.days) {
    if (!day.IsClosed()) continue;
    if (day.kind != RuleKind::kWeekday) return Readiness::kNotCompared;
    has_closed = true;
  }
  return has_closed ? Readiness::kWeekendsOnly : Readiness::kNotPrepared;
}

CurrencyJudgement JudgeCurrency(const ReviewedCurrency& currency, const RuleDirectory& rules,
                                const DateTables& tables, const ReviewHorizon& horizon, int first_year,
                                int last_year) {
  CurrencyJudgement judgement;
  for (int year = first_year; year <= last_year; ++year) judgement.years.push_back(StartOf(currency, year));
  const auto use = [&](const CalendarContent& calendar, const Comparison* comparison) {
    if (calendar.year < first_year || calendar.year > last_year) return;
    YearReadiness& year = judgement.years[static_cast<std::size_t>(calendar.year - first_year)];
    year.has_calendar = true;
    if (year.readiness == Readiness::kEnded) return;
    year.readiness = ReadinessByClosedDays(calendar);
    if (comparison != nullptr) Compare(*comparison, year);
  };
  judgement.findings = ReviewCurrency(currency, rules, tables, horizon, use);
  return judgement;
}

}  // namespace ferrowind::almanac
