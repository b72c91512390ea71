#include "ferrowind/planning/plan_lines.h"

#include <algorithm>
#include <utility>

#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/plan_words.h"

namespace ferrowind::planning {
namespace {

using almanac::ComparedDay;
using almanac::PlanAction;
using Kind = PlanLine::Kind;

/// Where a line stands among the conflicts, the gravest at 0.
int Rank(const PlanLine& line) {
  if (line.kind == Kind::kNotPlanned) return 0;
  if (line.is_blocked) return 1;
  if (line.kind == Kind::kIncomplete) return 2;
  return line.action == PlanAction::kException ? 3 : 4;
}

class LineMaker {
 public:
  LineMaker(const std::vector<PlannedCalendar>& calendars, const PlanLineFilter& filter)
      : calendars_(calendars), filter_(filter) {
    for (std::size_t i = 0; i < calendars.size(); ++i) {
      if (filter.calendar.value_or(i) == i) AddCalendar(i);
    }
    std::stable_sort(conflicts_.begin(), conflicts_.end(),
                     [](const PlanLine& left, const PlanLine& right) { return Rank(left) < Rank(right); });
  }

  [[nodiscard]] std::vector<PlanLine> Take() {
    std::vector<PlanLine> lines = std::move(conflicts_);
    lines.insert(lines.end(), std::make_move_iterator(others_.begin()),
                 std::make_move_iterator(others_.end()));
    return lines;
  }

 private:
  [[nodiscard]] PlanLine NewLine(Kind kind, std::size_t position, const std::string& key) const {
    PlanLine line;
    line.kind = kind;
    line.calendar = position;
    const CalendarKey& calendar = calendars_[position].Key();
    line.key = std::to_string(calendar.first) + "/" + std::to_string(calendar.second) + key;
    return line;
  }

  void Add(PlanLine line) { (line.is_conflict ? conflicts_ : others_).push_back(std::move(line)); }

  void AddCalendar(std::size_t position) {
    const PlannedCalendar& calendar = calendars_[position];
    if (calendar.Preparation() == nullptr) {
      PlanLine line = NewLine(Kind::kNotPlanned, position, "/not-planned");
      line.is_conflict = true;
      line.why = WhyNot(position);
      Add(std::move(line));
      return;
    }
    AddIncomplete(position);
    if (calendars_.size() > 1) AddWhole(position);
    for (const ComparedDay& day : calendar.Preparation()->Compared().Days()) {
      if (filter_.shows_all || IsShown(calendar, day)) AddDay(position, day);
    }
    AddBook(position);
  }

  void AddBook(std::size_t position) {
    const PlannedCalendar& calendar = calendars_[position];
    const std::size_t days = calendar.DaysForBook().size();
    if (days == 0) return;
    PlanLine line = NewLine(Kind::kBook, position, "/book");
    line.is_taken = calendar.TakesBook();
    line.why = BecomesOfBook(days, *line.is_taken);
    Add(std::move(line));
  }

  /// A cause that many have is told of the first of them alone.
  [[nodiscard]] std::string WhyNot(std::size_t position) const {
    const std::string& why = calendars_[position].WhyNot();
    const std::size_t first = filter_.calendar.value_or(0);
    for (std::size_t before = first; before < position; ++before) {
      const PlannedCalendar& other = calendars_[before];
      if (other.Preparation() == nullptr && other.WhyNot() == why) return InWords("As %1", {other.Name()});
    }
    return why;
  }

  void AddIncomplete(std::size_t position) {
    std::size_t number = 0;
    for (const platform::Phrase& sentence : calendars_[position].Preparation()->Plan().Incomplete()) {
      PlanLine line = NewLine(Kind::kIncomplete, position, "/incomplete/" + std::to_string(++number));
      line.is_conflict = true;
      line.why = InWords(sentence);
      Add(std::move(line));
    }
  }

  void AddWhole(std::size_t position) {
    const PlannedCalendar& calendar = calendars_[position];
    PlanLine line = NewLine(Kind::kCalendar, position, "");
    const auto& days = calendar.Preparation()->Compared().Days();
    if (std::any_of(days.begin(), days.end(),
                    [&](const auto& day) { return calendar.IsOpenToChoice(day); })) {
      line.is_taken = calendar.HasWork();
    }
    line.why = CountOf(calendar);
    Add(std::move(line));
  }

  [[nodiscard]] static bool IsShown(const PlannedCalendar& calendar, const ComparedDay& day) {
    if (day.action == PlanAction::kKeep) return false;
    // A weekend day that is left out, or that the database refuses, is no matter of course any more.
    return !IsNewWeekend(calendar.Preparation()->Plan(), day) || !calendar.Takes(day);
  }

  void AddDay(std::size_t position, const ComparedDay& day) {
    const PlannedCalendar& calendar = calendars_[position];
    const almanac::Comparison& comparison = calendar.Preparation()->Compared();
    almanac::ComparisonLine words = comparison.LineOf(day);
    PlanLine line = NewLine(Kind::kDay, position, "/" + std::to_string(day.day_of_year));
    line.date = words.date;
    line.action = day.action;
    line.why = WhyOf(day, words);
    line.now = std::move(words.now);
    line.should = std::move(words.should);
    const auto obstacle = comparison.ObstacleOf(day);
    line.is_blocked = obstacle.has_value();
    if (obstacle) line.why = InWords(*obstacle) + ". " + line.why;
    line.is_conflict = line.is_blocked || day.action == PlanAction::kException ||
                       (day.action == PlanAction::kRemove && day.now->kind != almanac::RuleKind::kWeekday);
    if (calendar.IsOpenToChoice(day)) line.is_taken = calendar.Takes(day);
    Add(std::move(line));
  }

  const std::vector<PlannedCalendar>& calendars_;
  const PlanLineFilter& filter_;
  std::vector<PlanLine> conflicts_;
  std::vector<PlanLine> others_;
};

}  // namespace

std::vector<PlanLine> LinesOf(const std::vector<PlannedCalendar>& calendars, const PlanLineFilter& filter) {
  return LineMaker(calendars, filter).Take();
}

std::string CountOf(const PlannedCalendar& calendar) {
  const DayTotals totals = calendar.Totals();
  const bool is_new = !calendar.Preparation()->CalendarExists();
  if (totals.taken == 0) {
    if (is_new) return InWords("no calendar is made");
    const bool is_listed = calendar.Source() == PlanSource::kList;
    return InWords(is_listed ? "as in the list%1" : "as planned%1", {ButFor(totals)});
  }
  return is_new ? InWords("a new calendar, %1", {CountedChanges(totals)}) : CountedChanges(totals);
}

}  // namespace ferrowind::planning
