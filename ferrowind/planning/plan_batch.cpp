#include "ferrowind/planning/plan_batch.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <optional>
#include <utility>

#include "ferrowind/planning/book_dates.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/plan_run.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/planning/told_write.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

using Kind = PlanOutcome::Kind;

/// The entry of a plan of the calendar that was just applied. Nothing when somebody else has changed the
/// calendar since, or the history cannot be read: the plan is applied all the same.
std::optional<HistoryEntry> EntryOfPlan(const CalendarKey& calendar) {
  try {
    HistoryPage page = LoadHistory({.currency = calendar.first, .year = calendar.second}, std::nullopt, 1);
    if (page.entries.empty()) return std::nullopt;
    HistoryEntry& newest = page.entries.front();
    if (newest.procedure != "CldApplyPlan" || newest.user != page.asker) return std::nullopt;
    return std::move(newest);
  } catch (const platform::Failure&) {
    return std::nullopt;
  }
}

/// The entry of the book of the currency that was just stored; nothing as above.
std::optional<HistoryEntry> EntryOfBook(std::int32_t currency) {
  try {
    HistoryPage page = LoadHistory({.currency = currency}, std::nullopt, 1);
    if (page.entries.empty()) return std::nullopt;
    HistoryEntry& newest = page.entries.front();
    if (newest.procedure != "CldIUBook" || newest.user != page.asker) return std::nullopt;
    return std::move(newest);
  } catch (const platform::Failure&) {
    return std::nullopt;
  }
}

/// What a calendar is called while the currencies cannot be read.
std::string NameOf(const CalendarKey& key, const CurrencyList& known) {
  return CalendarName(known.FindOrNumber(key.first), key.second);
}

/// What an applied plan has made of the calendar.
std::string DoneSentence(const PlannedCalendar& calendar, bool existed) {
  const bool is_listed = calendar.Source() == PlanSource::kList;
  return InWords(!existed    ? "%1 is made%2."
                 : is_listed ? "%1 is as in the list now%2."
                             : "%1 is as planned now%2.",
                 {calendar.Name(), ButFor(calendar.Totals())});
}

}  // namespace

PlanBatch::PlanBatch(const almanac::DateTables& tables, const std::vector<CalendarKey>& calendars,
                     const CurrencyList& known)
    : tables_(tables) {
  for (const CalendarKey& key : calendars) calendars_.emplace_back(key, NameOf(key, known));
  PlanAnew();
}

PlanBatch::PlanBatch(const almanac::DateTables& tables, const CalendarKey& calendar, Preparer prepare)
    : tables_(tables) {
  calendars_.emplace_back(calendar, NameOf(calendar, CurrencyList({})), PlanSource::kList,
                          std::move(prepare));
  PlanAnew();
}

DayTotals PlanBatch::Totals() const {
  DayTotals totals;
  for (const PlannedCalendar& calendar : calendars_) totals += calendar.Totals();
  return totals;
}

std::size_t PlanBatch::CalendarsToChange() const {
  return static_cast<std::size_t>(std::count_if(calendars_.begin(), calendars_.end(),
                                                [](const auto& calendar) { return calendar.HasWork(); }));
}

void PlanBatch::PlanAnew() {
  std::vector<std::size_t> all(calendars_.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  PlanAnew(all);
}

void PlanBatch::PlanAnew(const std::vector<std::size_t>& positions) {
  if (positions.empty()) return;
  try {
    const auto planner = std::make_shared<const YearPlanner>(tables_);
    for (const std::size_t position : positions) calendars_[position].Plan(planner);
  } catch (const platform::Failure& failure) {
    for (const std::size_t position : positions) calendars_[position].Fail(failure.Description());
  }
}

std::vector<PlanOutcome> PlanBatch::Apply() {
  PlanRun run(*this, PlanRun::Kind::kApply);
  while (run.Next()) run.Step();
  return run.Finish();
}

PlanOutcome PlanBatch::ApplyOne(std::size_t position) {
  PlannedCalendar& calendar = calendars_[position];
  const bool existed = calendar.Preparation()->CalendarExists();
  const std::size_t changed_days = calendar.Totals().taken;
  const auto days_for_book = calendar.TakesBook() ? calendar.DaysForBook() : std::vector<DatedHoliday>();
  const std::string& currency = calendar.Preparation()->Owner().code;
  try {
    WriteTold(platform::ActionKind::kApplyPlan, {currency, calendar.Key().second}, [&] {
      calendar.Apply();
      return return_value::kDone;
    });
  } catch (const Refusal& refusal) {
    return {position, Kind::kRefused,
            refusal.ReturnValue() == return_value::kContentIsAnother
                ? InWords("%1 was changed meanwhile; nothing was changed in it, and its plan is made anew.",
                          {calendar.Name()})
                : refusal.Description() + "."};
  } catch (const platform::Failure& failure) {
    return {position, Kind::kFailed, failure.Description() + "."};
  }
  if (auto entry = EntryOfPlan(calendar.Key())) {
    applied_.push_back({position, currency, {std::move(*entry)}});
  }
  PlanOutcome outcome{position, Kind::kDone, DoneSentence(calendar, existed), changed_days};
  if (!days_for_book.empty()) EnterInBook(days_for_book, outcome);
  return outcome;
}

void PlanBatch::EnterInBook(const std::vector<DatedHoliday>& days, PlanOutcome& outcome) {
  const Currency& currency = calendars_[outcome.calendar].Preparation()->Owner();
  if (const auto why_not = BookDates(tables_).Enter(currency, days)) {
    outcome.kind = Kind::kDoneInPart;
    outcome.sentence += " " + InWords(
                                  "The rule book of %1 does not get the days, so that the board will call "
                                  "them differences. %2.",
                                  {UnmistakableCode(currency), *why_not});
    return;
  }
  outcome.sentence += " " + InWords(days.size(), "The rule book of %1 has got %n day.",
                                    "The rule book of %1 has got %n days.", {UnmistakableCode(currency)});
  const bool is_undone_with_it = !applied_.empty() && applied_.back().calendar == outcome.calendar;
  auto entry = EntryOfBook(currency.id);
  if (is_undone_with_it && entry) applied_.back().entries.push_back(std::move(*entry));
}

std::vector<PlanOutcome> PlanBatch::Undo() {
  PlanRun run(*this, PlanRun::Kind::kUndo);
  while (run.Next()) run.Step();
  return run.Finish();
}

PlanOutcome PlanBatch::UndoOne(Applied& applied) const {
  const std::string& name = calendars_[applied.calendar].Name();
  std::string problems;
  try {
    for (; !applied.entries.empty(); applied.entries.pop_back()) {
      const HistoryEntry& entry = applied.entries.back();
      UndoOutcome outcome;
      const CalendarKey& key = calendars_[applied.calendar].Key();
      WriteTold(platform::ActionKind::kUndo, {applied.currency, key.second}, [&] {
        outcome = UndoEntry(entry, InWords("Undoing the plan"));
        return outcome.kind == UndoOutcome::Kind::kDone ? return_value::kDone : return_value::kChangedSince;
      });
      if (outcome.kind == UndoOutcome::Kind::kDone) continue;
      const auto currencies = CurrencyList::Load();
      const HistoryWords words(currencies, FindEntry);
      problems +=
          (problems.empty() ? "" : " ") + words.Calendar(entry) + ": " + words.WhyNotUndone(entry, outcome);
    }
  } catch (const platform::Failure& failure) {
    return {applied.calendar, Kind::kFailed, name + ": " + failure.Description() + "."};
  }
  if (!problems.empty()) return {applied.calendar, Kind::kRefused, problems};
  return {applied.calendar, Kind::kDone, InWords("%1 is as it was before.", {name})};
}

std::string SummaryOf(const PlanBatch& batch) {
  const auto& calendars = batch.Calendars();
  const auto count = [&](const auto& is_counted) {
    return static_cast<std::size_t>(std::count_if(calendars.begin(), calendars.end(), is_counted));
  };
  const std::size_t planned = count([](const auto& calendar) { return calendar.Preparation() != nullptr; });
  const DayTotals totals = batch.Totals();
  std::string summary;
  const auto add = [&](const std::string& sentence) { summary += (summary.empty() ? "" : " ") + sentence; };
  if (calendars.size() == 1 && planned == 1) {
    const bool is_as_planned = totals.taken == 0 && calendars.front().Preparation()->CalendarExists();
    add(InWords(is_as_planned ? "%1 is %2." : "%1: %2.",
                {calendars.front().Name(), CountOf(calendars.front())}));
  } else if (const std::size_t changing = batch.CalendarsToChange(); changing != 0) {
    add(InWords(changing, "%n calendar: %1.", "%n calendars: %1.", {CountedChanges(totals)}));
  } else if (planned != 0) {
    add(InWords(planned, "%n calendar is as planned%1.", "%n calendars are as planned%1.", {ButFor(totals)}));
  }
  if (const std::size_t not_planned = calendars.size() - planned; not_planned != 0) {
    add(InWords(not_planned, "%n calendar cannot be planned.", "%n calendars cannot be planned."));
  }
  const std::size_t incomplete = count([](const auto& calendar) {
    return calendar.Preparation() != nullptr && !calendar.Preparation()->Plan().Unknown().empty();
  });
  if (incomplete != 0) {
    add(InWords(incomplete, "%n plan lacks dates that are not known yet.",
                "%n plans lack dates that are not known yet."));
  }
  if (totals.lost_reasons != 0) {
    add(InWords(totals.lost_reasons, "%n working day by exception that has a reason will be closed.",
                "%n working days by exception that have a reason will be closed."));
  }
  return summary;
}

}  // namespace ferrowind::planning
