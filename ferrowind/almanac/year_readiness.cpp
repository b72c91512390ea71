#include "ferrowind/almanac/year_readiness.h"

#include <algorithm>
#include <optional>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/rule_matches.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::almanac {
namespace {

/// By its closed days alone.
Readiness ByClosedDays(const CalendarContent& calendar) {
  bool has_closed = false;
  for (const MarkedDay& day : calendar.days) {
    if (!day.IsClosed()) continue;
    if (day.kind != RuleKind::kWeekday) return Readiness::kNotCompared;
    has_closed = true;
  }
  return has_closed ? Readiness::kWeekendsOnly : Readiness::kNotPrepared;
}

void Count(const ComparedDay& day, YearReadiness& year) {
  if (day.action == PlanAction::kKeep) return;
  const bool has_reason = day.action == PlanAction::kException && !platform::Trim(day.now->comment).empty();
  ++(has_reason ? year.excepted_days : year.differing_days);
}

class CurrencyReadiness {
 public:
  CurrencyReadiness(const ReviewedCurrency& currency, const RuleDirectory& rules, const DateTables& tables)
      : currency_(currency) {
    if (!currency.book) return;
    planner_.emplace(*currency.book, tables);
    matches_.emplace(*currency.book, rules);
  }

  [[nodiscard]] YearReadiness Of(int year) const {
    YearReadiness readiness;
    readiness.year = year;
    const auto calendar =
        std::find_if(currency_.calendars.begin(), currency_.calendars.end(),
                     [year](const CalendarContent& content) { return content.year == year; });
    readiness.has_calendar = calendar != currency_.calendars.end();
    if (currency_.last_day && currency_.last_day->Year() < year) {
      readiness.readiness = Readiness::kEnded;
      return readiness;
    }
    readiness.can_be_planned = planner_ && planner_->Reaches(year);
    if (readiness.has_calendar) {
      readiness.readiness = ByClosedDays(*calendar);
      if (readiness.can_be_planned) Compare(*calendar, readiness);
    }
    return readiness;
  }

 private:
  void Compare(const CalendarContent& calendar, YearReadiness& year) const {
    const YearPlan plan = planner_->Plan(calendar.year);
    const Comparison comparison(plan, calendar, *matches_);
    for (const ComparedDay& day : comparison.Days()) Count(day, year);
    if (year.differing_days == 0 && year.readiness != Readiness::kNotPrepared) {
      year.readiness = Readiness::kPrepared;
    } else if (year.readiness == Readiness::kNotCompared) {
      year.readiness = Readiness::kDiffers;
    }
    if (plan.Unknown().empty()) return;
    const std::vector<platform::Phrase> sentences = plan.Incomplete();
    for (std::size_t i = 0; i < sentences.size(); ++i) {
      if (!comparison.IsEntered(plan.Unknown()[i])) year.unpublished.push_back(sentences[i]);
    }
  }

  const ReviewedCurrency& currency_;
  std::optional<Planner> planner_;
  std::optional<RuleMatches> matches_;
};

}  // namespace

std::vector<YearReadiness> ReadinessOf(const ReviewedCurrency& currency, const RuleDirectory& rules,
                                       const DateTables& tables, int first_year, int last_year) {
  const CurrencyReadiness readiness(currency, rules, tables);
  std::vector<YearReadiness> years;
  for (int year = first_year; year <= last_year; ++year) years.push_back(readiness.Of(year));
  return years;
}

}  // namespace ferrowind::almanac
