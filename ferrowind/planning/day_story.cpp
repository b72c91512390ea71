#include "ferrowind/planning/day_story.h"

#include <algorithm>
#include <utility>

#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/moment_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

using almanac::ComparedDay;
using almanac::MarkedDay;
using almanac::PlanAction;
using almanac::RuleKind;
using platform::Date;
using platform::Phrase;

bool HasDatedRule(const MarkedDay& day) { return day.IsClosed() && day.kind != RuleKind::kWeekday; }

Date DateIn(int year, int day_of_year) { return Date(year, 1, 1).AddDays(day_of_year - 1); }

}  // namespace

CalendarStory::CalendarStory(std::int32_t currency_id, int year, const almanac::DateTables& tables)
    : planner_(tables), currency_(planner_.Currencies().FindOrNumber(currency_id)), year_(year) {
  const int first = std::max(year - kYearsAround, kFirstCalendarYear);
  const int last = std::min(year + kYearsAround, kLastCalendarYear);
  for (int each = first; each <= last; ++each) {
    if (auto days = LoadDays(currency_, each)) contents_.emplace(each, *std::move(days));
  }
  try {
    preparation_ = planner_.Prepare(currency_, year);
  } catch (const platform::Failure& failure) {
    why_no_plan_ = failure.Description();
  }
}

const MarkedDay* CalendarStory::MarkedIn(int year, int day_of_year) const {
  const auto content = contents_.find(year);
  if (content == contents_.end()) return nullptr;
  const auto& days = content->second.days;
  const auto found =
      std::lower_bound(days.begin(), days.end(), day_of_year,
                       [](const MarkedDay& marked, int wanted) { return marked.day_of_year < wanted; });
  return found == days.end() || found->day_of_year != day_of_year ? nullptr : &*found;
}

std::string CalendarStory::NameOf(const MarkedDay& day) const {
  if (day.rule == almanac::kExceptionRule) return InWords(almanac::kExceptionName);
  const almanac::KnownRule* const rule = planner_.Rules().Find(day.rule);
  return rule == nullptr ? InWords("rule %1", {std::to_string(day.rule)}) : rule->name;
}

DayStory CalendarStory::Of(const Date& day) const {
  DayStory story{.day = day};
  if (const MarkedDay* const marked = MarkedIn(year_, day.DayOfYear())) {
    story.state = marked->IsClosed() ? DayStory::State::kClosed : DayStory::State::kException;
    story.rule = NameOf(*marked);
    story.has_dated_rule = HasDatedRule(*marked);
    story.comment = marked->comment;
  }
  if (!preparation_) {
    story.opinion = why_no_plan_;
    return story;
  }
  const almanac::RuleBook& book = preparation_->Plan().Book();
  story.source = book.publisher + ": " + book.document;
  TellPlan(preparation_->Compared().DayAt(day.DayOfYear()), story);
  return story;
}

void CalendarStory::TellPlan(const ComparedDay& day, DayStory& story) const {
  const almanac::ComparisonLine line = preparation_->Compared().LineOf(day);
  story.expression = ExpressionOf(day);
  if (day.unknown != nullptr) {
    story.opinion_kind = DayStory::Opinion::kUnknown;
    story.opinion = InWords(line.why);
    return;
  }
  const bool agrees = day.action == PlanAction::kKeep;
  story.opinion_kind = agrees ? DayStory::Opinion::kAsPlanned : DayStory::Opinion::kOtherwise;
  if (agrees) {
    story.opinion = InWords(Phrase::Of("as planned: %1", {line.why}));
  } else if (line.should) {
    story.opinion = InWords(Phrase::Of("should be %1: %2", {*line.should, line.why}));
  } else {
    const Phrase also = preparation_->Plan().AlsoOn(day.day_of_year);
    story.opinion = InWords(Phrase::Of("should be an ordinary working day%1", {also}));
  }
}

std::string CalendarStory::ExpressionOf(const ComparedDay& day) const {
  const auto& rules = preparation_->Plan().Book().rules;
  const auto has_now = [&](std::size_t rule) {
    return preparation_->Matches().HasNameOf(rule, day.now->rule);
  };
  // Of two rules of one name that which the plan means; an ordinary day has the one that it should have.
  if (day.should != nullptr && (day.now == nullptr || has_now(day.should->rule))) {
    return rules[day.should->rule].expression.ToText();
  }
  for (std::size_t rule = 0; day.now != nullptr && rule < rules.size(); ++rule) {
    if (has_now(rule)) return rules[rule].expression.ToText();
  }
  return {};
}

std::string CalendarStory::LoadLastChange(const Date& day) const {
  const HistoryPage page =
      LoadHistory({.currency = currency_.id, .year = year_, .day_of_year = day.DayOfYear()}, std::nullopt, 1);
  if (page.entries.empty()) return {};
  const HistoryWords words(planner_.Currencies(), FindEntry);
  const HistoryEntry& entry = page.entries.front();
  return entry.user + ", " + MomentText(AttachedPlatform().locale, entry.moment) + ": " +
         words.Tell(entry).Sentence();
}

std::vector<SameDay> CalendarStory::Around(const Date& day) const {
  const MarkedDay* const asked = MarkedIn(year_, day.DayOfYear());
  const bool is_dated = asked != nullptr && HasDatedRule(*asked);
  std::vector<SameDay> years;
  for (int year = year_ - kYearsAround; year <= year_ + kYearsAround; ++year) {
    if (year == year_ || year < kFirstCalendarYear || year > kLastCalendarYear) continue;
    SameDay same{.year = year, .is_prepared = contents_.contains(year), .day = day.AddYears(year - year_)};
    if (const MarkedDay* const marked = MarkedIn(year, same.day.DayOfYear())) same.rule = NameOf(*marked);
    if (is_dated && same.is_prepared) {
      for (const MarkedDay& marked : contents_.at(year).days) {
        if (marked.rule == asked->rule) same.days_of_rule.push_back(DateIn(year, marked.day_of_year));
      }
    }
    years.push_back(std::move(same));
  }
  return years;
}

}  // namespace ferrowind::planning
