#include "ferrowind/exchange/list_book.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/weekends.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::exchange {
namespace {

using almanac::BookRule;
using almanac::KnownRule;
using almanac::MarkedDay;
using almanac::RuleKind;
using platform::Date;

constexpr int kDaysOfWeek = 7;

class Matcher {
 public:
  Matcher(const YearList& list, const std::string& source, const ListSurroundings& surroundings)
      : list_(list), surroundings_(surroundings), new_year_(list.year, 1, 1) {
    result_.book.publisher = source;
    result_.book.document = source;
    result_.book.since = list.year;
    for (const MarkedDay& day : surroundings.now.days) now_[day.day_of_year] = &day;
  }

  ListBook Match() {
    for (const ListedDay& day : list_.days) {
      switch (day.kind) {
        case ListedKind::kHoliday:
        case ListedKind::kWeekend:
          Close(day);
          break;
        case ListedKind::kWorkingDay:
          Open(day);
          break;
        case ListedKind::kHalfDay:
          LeaveHalfDay(day);
          break;
      }
    }
    KeepWeekends();
    for (auto* const rules : {&closing_, &opening_}) {
      for (auto& [day_of_year, rule] : *rules) result_.book.rules.push_back(std::move(rule));
    }
    return std::move(result_);
  }

 private:
  /// The first rule that closes a day has it.
  void Add(int day_of_year, BookRule rule) { AddTo(closing_, day_of_year, std::move(rule)); }

  void AddTo(std::map<int, BookRule>& rules, int day_of_year, BookRule rule) const {
    rule.expression = almanac::DateExpression::Parse(new_year_.AddDays(day_of_year - 1).ToIso());
    rules.try_emplace(day_of_year, std::move(rule));
  }

  void Close(const ListedDay& day) {
    const int day_of_year = day.date.DayOfYear();
    const MarkedDay* const now = NowAt(day_of_year);
    const bool is_closed = now != nullptr && now->IsClosed();
    if (is_closed && (!surroundings_.takes_names || day.name.empty())) {
      const BookRule kept = RuleNow(*now);
      if (!day.name.empty() && platform::CompareIgnoringCase(day.name, kept.name) != 0) ++result_.other_names;
      return Add(day_of_year, kept);
    }
    if (!surroundings_.takes_names || day.name.empty()) {
      if (auto planned = RulePlanned(day_of_year)) return Add(day_of_year, *std::move(planned));
    }
    Add(day_of_year, RuleListed(day));
  }

  /// A plan opens only what it has closed; other days are open as they are.
  void Open(const ListedDay& day) {
    const int day_of_year = day.date.DayOfYear();
    const MarkedDay* const now = NowAt(day_of_year);
    auto closed = RulePlanned(day_of_year);
    if (now != nullptr && now->IsClosed()) closed = RuleNow(*now);
    if (!closed && list_.ListsWeekday(day.date.Weekday())) closed = RuleOfWeekday(day.date);
    if (!closed) return;
    Add(day_of_year, *std::move(closed));
    AddTo(opening_, day_of_year,
          {day.name.empty() ? "Working day" : day.name, RuleKind::kWorkingDay, {}, {}, {}});
  }

  void LeaveHalfDay(const ListedDay& day) {
    const int day_of_year = day.date.DayOfYear();
    const MarkedDay* const now = NowAt(day_of_year);
    const bool is_closed = now != nullptr && now->IsClosed();
    if (is_closed) Add(day_of_year, RuleNow(*now));
    result_.remarks.push_back((day.line == 0 ? "" : "Line " + std::to_string(day.line) + ": ") +
                              day.date.ToIso() + (day.name.empty() ? "" : " " + Quoted(day.name)) +
                              " is a half day and stays " + (is_closed ? "closed" : "open") + " as it is");
  }

  /// Lists that leave weekends out leave out the holidays on them, too.
  void KeepWeekends() {
    std::array<bool, kDaysOfWeek + 1> is_listed{};
    for (int weekday = 1; weekday <= kDaysOfWeek; ++weekday) {
      is_listed.at(static_cast<std::size_t>(weekday)) = list_.ListsWeekday(weekday);
    }
    const auto leaves_out = [&](int day_of_year) {
      return !is_listed.at(static_cast<std::size_t>(WeekdayOf(day_of_year)));
    };
    const auto& days = surroundings_.now.days;
    if (std::any_of(days.begin(), days.end(),
                    [](const MarkedDay& day) { return day.kind == RuleKind::kWeekday; })) {
      const Weekends weekends(surroundings_.now);
      for (const MarkedDay& day : days) {
        const bool is_weekend = day.kind == RuleKind::kWeekday ||
                                (day.IsClosed() && weekends.Include(WeekdayOf(day.day_of_year)));
        if (is_weekend && leaves_out(day.day_of_year)) Add(day.day_of_year, RuleNow(day));
      }
    } else if (surroundings_.planned != nullptr) {
      const almanac::YearPlan& plan = *surroundings_.planned;
      const Weekends weekends(plan);
      for (const almanac::PlannedDay& day : plan.Days()) {
        const MarkedDay* const now = NowAt(day.day_of_year);
        const bool is_exception = now != nullptr && !now->IsClosed();
        const bool is_weekend =
            plan.KindOf(day) != RuleKind::kWorkingDay && weekends.Include(WeekdayOf(day.day_of_year));
        if (is_weekend && leaves_out(day.day_of_year) && !is_exception) {
          Add(day.day_of_year, *RulePlanned(day.day_of_year));
        }
      }
    } else if (std::none_of(is_listed.begin(), is_listed.end(), [](bool listed) { return listed; })) {
      throw ListError({{0, "Nothing tells which days are weekends in " + std::to_string(list_.year) +
                               ": neither the calendar, nor a book of the currency, nor the list"}});
    }
  }

  [[nodiscard]] int WeekdayOf(int day_of_year) const { return new_year_.AddDays(day_of_year - 1).Weekday(); }

  [[nodiscard]] const MarkedDay* NowAt(int day_of_year) const {
    const auto found = now_.find(day_of_year);
    return found == now_.end() ? nullptr : found->second;
  }

  [[nodiscard]] BookRule RuleNow(const MarkedDay& day) const {
    const KnownRule* const rule = surroundings_.rules.Find(day.rule);
    return {rule != nullptr ? rule->name : "Rule " + std::to_string(day.rule), day.kind, {}, {}, {}};
  }

  [[nodiscard]] std::optional<BookRule> RulePlanned(int day_of_year) const {
    if (surroundings_.planned == nullptr) return std::nullopt;
    const almanac::YearPlan& plan = *surroundings_.planned;
    const almanac::PlannedDay* const day = plan.Find(day_of_year);
    if (day == nullptr || plan.KindOf(*day) == RuleKind::kWorkingDay) return std::nullopt;
    return BookRule{plan.NameOf(*day), plan.KindOf(*day), {}, plan.CommentOf(*day), {}};
  }

  /// The rule of the list's own name, of the type that the database knows for it.
  [[nodiscard]] BookRule RuleListed(const ListedDay& day) const {
    const bool is_weekend = day.kind == ListedKind::kWeekend;
    std::string name = day.name;
    if (name.empty()) name = is_weekend ? almanac::WeekdayName(day.date.Weekday()) : kNameless;
    const KnownRule* const known = surroundings_.rules.FindNamed(name);
    if (known != nullptr && known->kind != RuleKind::kWorkingDay)
      return {known->name, known->kind, {}, {}, {}};
    if (surroundings_.planned != nullptr) {
      for (const BookRule& rule : surroundings_.planned->Book().rules) {
        const bool is_it =
            rule.kind != RuleKind::kWorkingDay && platform::CompareIgnoringCase(rule.name, name) == 0;
        if (is_it) return {rule.name, rule.kind, {}, rule.comment, {}};
      }
    }
    return {name, is_weekend ? RuleKind::kWeekday : RuleKind::kPoint, {}, {}, {}};
  }

  /// What the list calls other days of that weekday.
  [[nodiscard]] BookRule RuleOfWeekday(const Date& date) const {
    ListedDay weekend{date, {}, ListedKind::kWeekend};
    for (const ListedDay& day : list_.days) {
      if (day.kind == ListedKind::kWeekend && day.date.Weekday() == date.Weekday()) weekend.name = day.name;
    }
    return RuleListed(weekend);
  }

  const YearList& list_;
  const ListSurroundings& surroundings_;
  Date new_year_;
  ListBook result_;
  std::map<int, const MarkedDay*> now_;
  std::map<int, BookRule> closing_;
  std::map<int, BookRule> opening_;
};

}  // namespace

ListBook BookOf(const YearList& list, const std::string& source, const ListSurroundings& surroundings) {
  if (list.year > almanac::kLastYear) {
    throw ListError({{0, "A list of " + std::to_string(list.year) + " cannot become a plan: plans reach to " +
                             std::to_string(almanac::kLastYear)}});
  }
  return Matcher(list, source, surroundings).Match();
}

}  // namespace ferrowind::exchange
