#include "ferrowind/almanac/review.h"

#include <algorithm>
#include <utility>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/review_history.h"
#include "ferrowind/almanac/rule_matches.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::almanac {
namespace {

using platform::Date;
using platform::Phrase;

constexpr int kSeptember = 9;
/// How far a year may go beyond the other years of its currency before its number of holidays is unusual.
constexpr int kUsualDifference = 2;

bool IsBlank(const std::string& text) { return platform::Trim(text).empty(); }

/// Whether a celebration of 29 February stands beside it in a year that has none.
bool StandsInForLeapDay(const KnownRule& rule, const Date& date) {
  if (rule.month != 2 || rule.day != 29 || platform::IsLeapYear(date.Year())) return false;
  return date == Date(date.Year(), 2, 28) || date == Date(date.Year(), 3, 1);
}

class CurrencyReview {
 public:
  CurrencyReview(const ReviewedCurrency& currency, const RuleDirectory& rules, const DateTables& tables)
      : currency_(currency),
        called_(currency.called.empty() ? currency.code : currency.called),
        rules_(rules) {
    if (!currency.book) return;
    planner_.emplace(*currency.book, tables);
    matches_.emplace(*currency.book, rules);
  }

  std::vector<Finding> Run(const ReviewHorizon& horizon, const ComparisonUse& use) {
    ReviewBook();
    ReviewYears(horizon);
    for (const CalendarContent& calendar : currency_.calendars) {
      if (!planner_ || !planner_->Reaches(calendar.year)) {
        ReviewCalendar(calendar, nullptr, horizon);
        if (use) use(calendar, nullptr);
        continue;
      }
      const YearPlan plan = planner_->Plan(calendar.year);
      const Comparison comparison(plan, calendar, *matches_);
      ReviewCalendar(calendar, &comparison, horizon);
      if (use) use(calendar, &comparison);
    }
    return std::move(findings_);
  }

 private:
  void Add(FindingLevel level, FindingSubject subject, std::optional<int> year, std::optional<Date> day,
           Phrase sentence) {
    findings_.push_back({level, subject, currency_.code, year, day, std::move(sentence)});
  }

  void AddDay(FindingLevel level, FindingSubject subject, const Date& day, const Phrase& predicate) {
    Add(level, subject, day.Year(), day,
        Phrase::Of("%1: %2 %3.", {called_, LongDay(day.Serial()), predicate}));
  }

  [[nodiscard]] std::string Calendar(int year) const { return called_ + " " + std::to_string(year); }

  void ReviewBook() {
    for (const std::string& fault : currency_.book_faults) {
      Add(FindingLevel::kWarning, FindingSubject::kFaultyBook, {}, {},
          Phrase::Of("The book of %1 cannot be used: %2.", {called_, fault}));
    }
    if (!currency_.book && currency_.book_faults.empty()) {
      Add(FindingLevel::kNote, FindingSubject::kNoBook, {}, {},
          Phrase::Of("%1 has no book, so nothing tells what its calendars should be.", {called_}));
    }
    if (currency_.book) ReviewYearsBeforeBook(*currency_.book);
  }

  void ReviewYearsBeforeBook(const RuleBook& book) {
    const auto before = std::count_if(currency_.calendars.begin(), currency_.calendars.end(),
                                      [&](const auto& calendar) { return !book.HoldsIn(calendar.year); });
    if (before == 0) return;
    Add(FindingLevel::kNote, FindingSubject::kBeforeBook, {}, {},
        Phrase::OfNumber(
            before,
            "The book of %1 holds from %2 on, and a calendar of an earlier year is compared with no plan.",
            "The book of %1 holds from %2 on, and calendars of earlier years are compared with no plan.",
            {called_, std::to_string(*book.since)}));
  }

  void ReviewYears(const ReviewHorizon& horizon) {
    for (int year = horizon.running_year; year <= horizon.last_year; ++year) {
      if (currency_.last_day && currency_.last_day->Year() < year) break;
      const bool is_there =
          std::any_of(currency_.calendars.begin(), currency_.calendars.end(),
                      [&](const CalendarContent& calendar) { return calendar.year == year; });
      if (is_there) continue;
      const bool is_running = year == horizon.running_year;
      Add(is_running ? FindingLevel::kError : FindingLevel::kWarning, FindingSubject::kMissingYear, year, {},
          Phrase::Of(
              is_running ? "%1 has no calendar for %2, the running year." : "%1 has no calendar for %2.",
              {called_, std::to_string(year)}));
    }
  }

  /// `comparison` is null when no plan can be made of the year.
  void ReviewCalendar(const CalendarContent& calendar, const Comparison* comparison,
                      const ReviewHorizon& horizon) {
    const bool has_weekends = std::any_of(calendar.days.begin(), calendar.days.end(),
                                          [](const auto& day) { return day.kind == RuleKind::kWeekday; });
    if (!has_weekends) {
      Add(FindingLevel::kError, FindingSubject::kNoWeekends, calendar.year, {},
          Phrase::Of("%1 has no weekends: no weekday holiday closes any of its days.",
                     {Calendar(calendar.year)}));
    }
    if (comparison != nullptr) {
      ReviewPlanned(*comparison, has_weekends);
      if (!comparison->Plan().Unknown().empty()) ReviewUnknown(*comparison, horizon);
    } else {
      for (const MarkedDay& day : calendar.days) ReviewUnplanned(day, calendar.year);
    }
    if (comparison == nullptr || comparison->Differs()) ReviewNumber(calendar.year);
  }

  void ReviewPlanned(const Comparison& comparison, bool has_weekends) {
    const YearPlan& plan = comparison.Plan();
    for (const ComparedDay& day : comparison.Days()) {
      if (day.unknown != nullptr) ReviewUnplanned(*day.now, plan.Year());
      if (day.action == PlanAction::kKeep) continue;
      // Where there are no weekends at all, one finding tells of them.
      const bool is_told =
          !has_weekends && day.now == nullptr && plan.KindOf(*day.should) == RuleKind::kWeekday;
      if (!is_told) ReviewDifference(comparison, day);
    }
  }

  void ReviewDifference(const Comparison& comparison, const ComparedDay& day) {
    const ComparisonLine line = comparison.LineOf(day);
    const Phrase should = line.should
                              ? Phrase::Of("%1 (%2)", {*line.should, line.why})
                              : Phrase::Of("a working day%1", {comparison.Plan().AlsoOn(day.day_of_year)});
    if (day.action != PlanAction::kException) {
      AddDay(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, line.date,
             Phrase::Of("is %1 and should be %2",
                        {line.now ? Phrase(*line.now) : Phrase::Of("a working day"), should}));
    } else if (IsBlank(day.now->comment)) {
      AddDay(FindingLevel::kWarning, FindingSubject::kExceptionWithoutReason, line.date,
             Phrase::Of("is a working day by exception, without a reason, and should be %1", {should}));
    } else {
      AddDay(FindingLevel::kNote, FindingSubject::kExceptionWithReason, line.date,
             Phrase::Of("is a working day by exception, \"%1\", where the plan has %2",
                        {day.now->comment, line.should ? Phrase(*line.should) : Phrase::Of("none")}));
    }
  }

  void ReviewUnknown(const Comparison& comparison, const ReviewHorizon& horizon) {
    const YearPlan& plan = comparison.Plan();
    const std::vector<Phrase> sentences = plan.Incomplete();
    for (std::size_t i = 0; i < sentences.size(); ++i) {
      const bool is_late = plan.Year() <= horizon.running_year && !comparison.IsEntered(plan.Unknown()[i]);
      Add(is_late ? FindingLevel::kWarning : FindingLevel::kNote, FindingSubject::kIncompletePlan,
          plan.Year(), {},
          Phrase::Of("%1 cannot be judged in full. %2.", {Calendar(plan.Year()), sentences[i]}));
    }
  }

  /// Judges a day that no plan judges.
  void ReviewUnplanned(const MarkedDay& day, int year) {
    const Date date = Date(year, 1, 1).AddDays(day.day_of_year - 1);
    if (day.kind == RuleKind::kWorkingDay && IsBlank(day.comment)) {
      AddDay(FindingLevel::kWarning, FindingSubject::kExceptionWithoutReason, date,
             Phrase::Of("is a working day by exception, without a reason"));
    }
    const KnownRule* const rule = rules_.Find(day.rule);
    if (rule == nullptr) return;
    if (day.kind == RuleKind::kCelebration && (date.Month() != rule->month || date.Day() != rule->day) &&
        !StandsInForLeapDay(*rule, date)) {
      AddDay(FindingLevel::kWarning, FindingSubject::kOtherDate, date,
             Phrase::Of("is %1, whose date is %2", {rule->name, DayAndMonth(rule->month, rule->day)}));
    }
    if (day.kind != RuleKind::kPoint) return;
    const std::optional<int> usual = History().OnlyWeekdayOf(day.rule, year);
    if (usual && *usual != date.Weekday()) {
      AddDay(FindingLevel::kWarning, FindingSubject::kOtherWeekday, date,
             Phrase::Of("is %1, which is on a %2 in every other year", {rule->name, Weekday(*usual)}));
    }
  }

  void ReviewNumber(int year) {
    const int holidays = History().HolidaysIn(year);
    const auto usual = History().HolidaysInOtherYears(year);
    if (!usual ||
        (holidays >= usual->least - kUsualDifference && holidays <= usual->most + kUsualDifference)) {
      return;
    }
    const std::string least = std::to_string(usual->least);
    const Phrase range = usual->least == usual->most
                             ? Phrase(least)
                             : Phrase::Of("%1 to %2", {least, std::to_string(usual->most)});
    Add(FindingLevel::kNote, FindingSubject::kUnusualNumber, year, {},
        Phrase::Of("%1 has an unusual number of holidays beside its weekends: %2, and %3 in the other years.",
                   {Calendar(year), std::to_string(holidays), range}));
  }

  /// Made only for currencies that need it.
  const ReviewHistory& History() {
    if (!history_) history_.emplace(currency_.calendars);
    return *history_;
  }

  const ReviewedCurrency& currency_;
  const std::string called_;
  const RuleDirectory& rules_;
  std::optional<Planner> planner_;
  std::optional<RuleMatches> matches_;
  std::optional<ReviewHistory> history_;
  std::vector<Finding> findings_;
};

}  // namespace

bool ReviewHorizon::NextYearIsUrgent(const Date& today) { return today.Month() >= kSeptember; }

ReviewHorizon ReviewHorizon::Of(const Date& today, std::optional<int> further_years) {
  const int usual = NextYearIsUrgent(today) ? 2 : 1;
  return {today.Year(), today.Year() + further_years.value_or(usual)};
}

std::vector<Finding> ReviewCurrency(const ReviewedCurrency& currency, const RuleDirectory& rules,
                                    const DateTables& tables, const ReviewHorizon& horizon,
                                    const ComparisonUse& use) {
  return CurrencyReview(currency, rules, tables).Run(horizon, use);
}

}  // namespace ferrowind::almanac
