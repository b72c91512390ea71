// How currencies are judged, against days compared one by one, for all delivered books.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/year_readiness.h"
#include "ferrowind/platform/values/conversion.h"

#include "tests/unit/almanac/delivered_plans.h"

namespace ferrowind::almanac {
namespace {

constexpr int kFirst = 2025;
constexpr int kLast = 2028;
constexpr ReviewHorizon kHorizon{2026, 2027};
/// A rule that no book names.
constexpr std::int32_t kForeignRule = 2;

/// A database that has a rule for each name of the book.
class NamedRules {
 public:
  explicit NamedRules(const RuleBook& book) {
    Add(kExceptionName, RuleKind::kWorkingDay);
    Add("A rule of nobody's book", RuleKind::kPoint);
    for (const BookRule& rule : book.rules) {
      if (rule.kind == RuleKind::kWorkingDay) continue;
      Add(rule.name, rule.kind);
      if (!rule.expression.moves.empty()) Add(rule.NameOfMovedDay(), RuleKind::kPoint);
    }
  }

  [[nodiscard]] RuleDirectory Directory() const { return RuleDirectory(rules_); }
  /// Of the rule that the day should have.
  [[nodiscard]] std::int32_t IdOf(const YearPlan& plan, const PlannedDay& day) const {
    return plan.KindOf(day) == RuleKind::kWorkingDay ? kExceptionRule : ids_.at(plan.NameOf(day));
  }

 private:
  void Add(const std::string& name, RuleKind kind) {
    const auto id = static_cast<std::int32_t>(rules_.size() + 1);
    if (ids_.emplace(name, id).second) rules_.push_back({id, name, kind, 0, 0, false});
  }

  std::vector<KnownRule> rules_;
  std::map<std::string, std::int32_t> ids_;
};

CalendarContent AsPlanned(const YearPlan& plan, const NamedRules& rules) {
  CalendarContent calendar{plan.Year(), {}};
  for (const PlannedDay& day : plan.Days()) {
    calendar.days.push_back({day.day_of_year, plan.KindOf(day), rules.IdOf(plan, day), {}});
  }
  return calendar;
}

MarkedDay& NthHoliday(CalendarContent& calendar, int n) {
  for (MarkedDay& day : calendar.days) {
    const bool is_holiday = day.kind == RuleKind::kPoint || day.kind == RuleKind::kCelebration;
    if (is_holiday && n-- == 0) return day;
  }
  return calendar.days.back();
}

void MarkFreeDay(CalendarContent& calendar, const MarkedDay& added) {
  const auto place = std::lower_bound(
      calendar.days.begin(), calendar.days.end(), added,
      [](const auto& left, const auto& right) { return left.day_of_year < right.day_of_year; });
  if (place == calendar.days.end() || place->day_of_year != added.day_of_year)
    calendar.days.insert(place, added);
}

/// What somebody can have done to a calendar.
const std::map<std::string, std::function<void(CalendarContent&)>>& Damages() {
  static const std::map<std::string, std::function<void(CalendarContent&)>> damages = {
      {"nothing", [](CalendarContent&) {}},
      {"a holiday removed",
       [](CalendarContent& calendar) {
         const auto day = NthHoliday(calendar, 2).day_of_year;
         std::erase_if(calendar.days, [&](const MarkedDay& marked) { return marked.day_of_year == day; });
       }},
      {"a holiday of another rule",
       [](CalendarContent& calendar) {
         MarkedDay& day = NthHoliday(calendar, 1);
         day.rule = kForeignRule;
         day.kind = RuleKind::kPoint;
       }},
      {"a holiday excepted with a reason",
       [](CalendarContent& calendar) {
         MarkedDay& day = NthHoliday(calendar, 0);
         day = {day.day_of_year, RuleKind::kWorkingDay, kExceptionRule, "Stock-taking"};
       }},
      {"a holiday excepted without a reason",
       [](CalendarContent& calendar) {
         MarkedDay& day = NthHoliday(calendar, 0);
         day = {day.day_of_year, RuleKind::kWorkingDay, kExceptionRule, " "};
       }},
      {"days added",
       [](CalendarContent& calendar) {
         for (const int day : {3, 61, 200, 320, 364}) {
           MarkFreeDay(calendar, {static_cast<std::int16_t>(day), RuleKind::kPoint, kForeignRule, {}});
         }
       }},
      {"an exception on a working day",
       [](CalendarContent& calendar) {
         for (const int day : {64, 65, 66}) {
           MarkFreeDay(calendar, {static_cast<std::int16_t>(day), RuleKind::kWorkingDay, kExceptionRule, {}});
         }
       }},
      {"weekends alone",
       [](CalendarContent& calendar) {
         std::erase_if(calendar.days, [](const MarkedDay& day) { return day.kind != RuleKind::kWeekday; });
       }},
      {"no weekends",
       [](CalendarContent& calendar) {
         std::erase_if(calendar.days, [](const MarkedDay& day) { return day.kind == RuleKind::kWeekday; });
       }},
      {"nothing left", [](CalendarContent& calendar) { calendar.days.clear(); }},
  };
  return damages;
}

struct NaiveCounts {
  int differing = 0;
  int excepted = 0;
  bool has_closed = false;
  bool has_weekend = false;
  bool has_holiday = false;
};

/// Looks at each day of the year by itself. `plan` knows all dates.
NaiveCounts CountDayByDay(const YearPlan& plan, const CalendarContent& calendar, const NamedRules& rules) {
  std::array<const MarkedDay*, 367> marked{};
  for (const MarkedDay& day : calendar.days) marked.at(static_cast<std::size_t>(day.day_of_year)) = &day;
  NaiveCounts counts;
  for (int number = 1; number <= platform::DaysInYear(plan.Year()); ++number) {
    const MarkedDay* const now = marked.at(static_cast<std::size_t>(number));
    const bool is_closed = now != nullptr && now->kind != RuleKind::kWorkingDay;
    const PlannedDay* const should = plan.Find(number);
    counts.has_closed = counts.has_closed || is_closed;
    counts.has_weekend = counts.has_weekend || (is_closed && now->kind == RuleKind::kWeekday);
    counts.has_holiday = counts.has_holiday || (is_closed && now->kind != RuleKind::kWeekday);
    const bool is_as_planned =
        should == nullptr ? !is_closed : now != nullptr && now->rule == rules.IdOf(plan, *should);
    if (is_as_planned) continue;
    const bool is_decided =
        now != nullptr && !is_closed && should != nullptr && !platform::Trim(now->comment).empty();
    ++(is_decided ? counts.excepted : counts.differing);
  }
  return counts;
}

Readiness NaiveReadiness(const NaiveCounts& counts) {
  if (!counts.has_closed) return Readiness::kNotPrepared;
  if (counts.differing == 0) return Readiness::kPrepared;
  return counts.has_holiday ? Readiness::kDiffers : Readiness::kWeekendsOnly;
}

/// How many days of that year a finding calls another than planned.
int DaysFound(const std::vector<Finding>& findings, int year) {
  return static_cast<int>(std::count_if(findings.begin(), findings.end(), [year](const Finding& finding) {
    const bool is_told = finding.subject == FindingSubject::kDiffersFromPlan ||
                         finding.subject == FindingSubject::kExceptionWithoutReason ||
                         finding.subject == FindingSubject::kExceptionWithReason;
    return is_told && finding.day && finding.year == year;
  }));
}

class JudgementOfDeliveredBook : public ::testing::TestWithParam<const char*> {};

TEST_P(JudgementOfDeliveredBook, IsWhatDaysComparedOneByOneGive) {
  const RuleBook& book = testing::DeliveredBook(GetParam());
  const DateTables& tables = testing::DeliveredDateTables();
  const NamedRules rules(book);
  const RuleDirectory directory = rules.Directory();
  const Planner planner(book, tables);
  int compared = 0;
  for (const auto& [damage, inflict] : Damages()) {
    ReviewedCurrency currency{GetParam(), book, {}, {}, {}};
    for (int year = kFirst; year <= kLast; ++year) {
      if (!planner.Reaches(year)) continue;
      currency.calendars.push_back(AsPlanned(planner.Plan(year), rules));
      inflict(currency.calendars.back());
    }
    const CurrencyJudgement judgement = JudgeCurrency(currency, directory, tables, kHorizon, kFirst, kLast);
    ASSERT_EQ(judgement.years.size(), static_cast<std::size_t>(kLast - kFirst + 1));
    for (const CalendarContent& calendar : currency.calendars) {
      SCOPED_TRACE(damage + " in " + std::to_string(calendar.year));
      const YearPlan plan = planner.Plan(calendar.year);
      const YearReadiness& year = judgement.years[static_cast<std::size_t>(calendar.year - kFirst)];
      EXPECT_EQ(year.year, calendar.year);
      EXPECT_TRUE(year.has_calendar);
      EXPECT_TRUE(year.can_be_planned);
      if (!plan.Unknown().empty()) continue;
      const NaiveCounts counts = CountDayByDay(plan, calendar, rules);
      EXPECT_EQ(year.differing_days, counts.differing);
      EXPECT_EQ(year.excepted_days, counts.excepted);
      EXPECT_EQ(year.readiness, NaiveReadiness(counts));
      // Where all weekends are missing, one finding tells of them.
      if (counts.has_weekend) {
        EXPECT_EQ(DaysFound(judgement.findings, calendar.year), counts.differing + counts.excepted);
      }
      ++compared;
    }
  }
  EXPECT_GT(compared, 0);
}

INSTANTIATE_TEST_SUITE_P(Books, JudgementOfDeliveredBook,
                         ::testing::Values("AUD", "BRL", "CAD", "CHF", "CLP", "CNY", "CZK", "DKK", "EUR",
                                           "GBP", "HKD", "HUF", "ILS", "ISK", "JPY", "KRW", "MXN", "NOK",
                                           "NZD", "PLN", "RON", "SEK", "SGD", "TRY", "USD", "ZAR"),
                         [](const auto& book) { return std::string(book.param); });

}  // namespace
}  // namespace ferrowind::almanac
