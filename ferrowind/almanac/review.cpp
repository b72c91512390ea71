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

constexpr int kSeptember = 9;
/// How far a year may go beyond the other years of its currency before its number of holidays is unusual.
constexpr int kUsualDifference = 2;

/// "Friday 14 April 2028".
std::string DateInWords(const Date& date) {
  return std::string(WeekdayName(date.Weekday())) + " " + LongDate(date.Serial());
}

bool IsBlank(const std::string& text) { return platform::Trim(text).empty(); }

/// Whether a celebration of 29 February stands beside it in a year that has none.
bool StandsInForLeapDay(const KnownRule& rule, const Date& date) {
  if (rule.month != 2 || rule.day != 29 || platform::IsLeapYear(date.Year())) return false;
  return date == Date(date.Year(), 2, 28) || date == Date(date.Year(), 3, 1);
}

class CurrencyReview {
 public:
  CurrencyReview(const ReviewedCurrency& currency, const RuleDirectory& rules, const DateTables& tables)
      : currency_(currency), rules_(rules) {
    if (!currency.book) return;
    planner_.emplace(*currency.book, tables);
    matches_.emplace(*currency.book, rules);
  }

  std::vector<Finding> Run(const ReviewHorizon& horizon) {
    ReviewBook();
    ReviewYears(horizon);
    for (const CalendarContent& calendar : currency_.calendars) ReviewCalendar(calendar, horizon);
    return std::move(findings_);
  }

 private:
  void Add(FindingLevel level, FindingSubject subject, std::optional<int> year, std::optional<Date> day,
           std::string sentence) {
    findings_.push_back({level, subject, currency_.code, year, day, std::move(sentence)});
  }

  void AddDay(FindingLevel level, FindingSubject subject, const Date& day, const std::string& predicate) {
    Add(level, subject, day.Year(), day, currency_.code + ": " + DateInWords(day) + " " + predicate + ".");
  }

  [[nodiscard]] std::string Calendar(int year) const { return currency_.code + " " + std::to_string(year); }

  void ReviewBook() {
    for (const std::string& fault : currency_.book_faults) {
      Add(FindingLevel::kWarning, FindingSubject::kFaultyBook, {}, {},
          "The book of " + currency_.code + " cannot be used: " + fault + ".");
    }
    if (!currency_.book && currency_.book_faults.empty()) {
      Add(FindingLevel::kNote, FindingSubject::kNoBook, {}, {},
          currency_.code + " has no book, so nothing tells what its calendars should be.");
    }
    if (currency_.book) ReviewYearsBeforeBook(*currency_.book);
  }

  void ReviewYearsBeforeBook(const RuleBook& book) {
    const auto before = std::count_if(currency_.calendars.begin(), currency_.calendars.end(),
                                      [&](const auto& calendar) { return !book.HoldsIn(calendar.year); });
    if (before == 0) return;
    Add(FindingLevel::kNote, FindingSubject::kBeforeBook, {}, {},
        "The book of " + currency_.code + " holds from " + std::to_string(*book.since) + " on, and " +
            (before == 1 ? "a calendar of an earlier year is" : "calendars of earlier years are") +
            " compared with no plan.");
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
          currency_.code + " has no calendar for " + std::to_string(year) +
              (is_running ? ", the running year." : "."));
    }
  }

  void ReviewCalendar(const CalendarContent& calendar, const ReviewHorizon& horizon) {
    const bool has_weekends = std::any_of(calendar.days.begin(), calendar.days.end(),
                                          [](const auto& day) { return day.kind == RuleKind::kWeekday; });
    if (!has_weekends) {
      Add(FindingLevel::kError, FindingSubject::kNoWeekends, calendar.year, {},
          Calendar(calendar.year) + " has no weekends: no weekday holiday closes any of its days.");
    }
    const bool is_planned = planner_ && planner_->Reaches(calendar.year);
    bool is_odd = !is_planned;
    if (is_planned) {
      const YearPlan plan = planner_->Plan(calendar.year);
      const Comparison comparison(plan, calendar, *matches_);
      is_odd = comparison.Differs();
      ReviewPlanned(comparison, has_weekends);
      if (!plan.Unknown().empty()) ReviewUnknown(comparison, horizon);
    } else {
      for (const MarkedDay& day : calendar.days) ReviewUnplanned(day, calendar.year);
    }
    if (is_odd) ReviewNumber(calendar.year);
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
    std::string should = " and should be ";
    if (line.should) {
      should += *line.should + " (" + line.why + ")";
    } else {
      // Behind "an ordinary working day" the reason has what else would be there.
      should += "a working day" + line.why.substr(std::min(line.why.find(';'), line.why.size()));
    }
    if (day.action != PlanAction::kException) {
      AddDay(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, line.date,
             "is " + line.now.value_or("a working day") + should);
    } else if (IsBlank(day.now->comment)) {
      AddDay(FindingLevel::kWarning, FindingSubject::kExceptionWithoutReason, line.date,
             "is a working day by exception, without a reason," + should);
    } else {
      AddDay(FindingLevel::kNote, FindingSubject::kExceptionWithReason, line.date,
             "is a working day by exception, \"" + day.now->comment + "\", where the plan has " +
                 line.should.value_or("none"));
    }
  }

  void ReviewUnknown(const Comparison& comparison, const ReviewHorizon& horizon) {
    const YearPlan& plan = comparison.Plan();
    const std::vector<std::string> sentences = plan.Incomplete();
    for (std::size_t i = 0; i < sentences.size(); ++i) {
      const bool is_late = plan.Year() <= horizon.running_year && !comparison.IsEntered(plan.Unknown()[i]);
      Add(is_late ? FindingLevel::kWarning : FindingLevel::kNote, FindingSubject::kIncompletePlan,
          plan.Year(), {}, Calendar(plan.Year()) + " cannot be judged in full. " + sentences[i] + ".");
    }
  }

  /// Judges a day that no plan judges.
  void ReviewUnplanned(const MarkedDay& day, int year) {
    const Date date = Date(year, 1, 1).AddDays(day.day_of_year - 1);
    if (day.kind == RuleKind::kWorkingDay && IsBlank(day.comment)) {
      AddDay(FindingLevel::kWarning, FindingSubject::kExceptionWithoutReason, date,
             "is a working day by exception, without a reason");
    }
    const KnownRule* const rule = rules_.Find(day.rule);
    if (rule == nullptr) return;
    if (day.kind == RuleKind::kCelebration && (date.Month() != rule->month || date.Day() != rule->day) &&
        !StandsInForLeapDay(*rule, date)) {
      AddDay(FindingLevel::kWarning, FindingSubject::kOtherDate, date,
             "is " + rule->name + ", whose date is " + DayAndMonth(rule->month, rule->day));
    }
    if (day.kind != RuleKind::kPoint) return;
    const std::optional<int> usual = History().OnlyWeekdayOf(day.rule, year);
    if (usual && *usual != date.Weekday()) {
      AddDay(FindingLevel::kWarning, FindingSubject::kOtherWeekday, date,
             "is " + rule->name + ", which is on a " + std::string(WeekdayName(*usual)) +
                 " in every other year");
    }
  }

  void ReviewNumber(int year) {
    const int holidays = History().HolidaysIn(year);
    const auto usual = History().HolidaysInOtherYears(year);
    if (!usual ||
        (holidays >= usual->least - kUsualDifference && holidays <= usual->most + kUsualDifference)) {
      return;
    }
    const std::string range = usual->least == usual->most
                                  ? std::to_string(usual->least)
                                  : std::to_string(usual->least) + " to " + std::to_string(usual->most);
    Add(FindingLevel::kNote, FindingSubject::kUnusualNumber, year, {},
        Calendar(year) + " has an unusual number of holidays beside its weekends: " +
            std::to_string(holidays) + ", and " + range + " in the other years.");
  }

  /// Made only for currencies that need it.
  const ReviewHistory& History() {
    if (!history_) history_.emplace(currency_.calendars);
    return *history_;
  }

  const ReviewedCurrency& currency_;
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
                                    const DateTables& tables, const ReviewHorizon& horizon) {
  return CurrencyReview(currency, rules, tables).Run(horizon);
}

}  // namespace ferrowind::almanac
