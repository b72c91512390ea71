#include "ferrowind/views/planning/history_tools.h"

#include "ferrowind/data/confirm.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/planning/told_undo.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/planning/currency_on_show.h"
#include "ferrowind/views/planning/selected_days.h"

namespace ferrowind {
namespace {

using planning::HistoryEntry;
using planning::HistoryWords;
using planning::OwnChange;
using platform::CalendarOnShow;

constexpr const char* kHistory = "ID_History";
constexpr const char* kDayHistory = "ID_DayHistory";
constexpr const char* kUndo = "ID_Undo";
//: said
constexpr const char* kUndoes = "Undoes your last change of this calendar";

/// What tells the changes of a calendar in words.
class Teller {
 public:
  [[nodiscard]] std::optional<OwnChange> OwnLastChange(const CalendarOnShow& calendar) const {
    return planning::LoadOwnLastChange(calendar.currency_id, calendar.year, words_);
  }
  [[nodiscard]] const HistoryWords& Words() const { return words_; }
  [[nodiscard]] const planning::CurrencyList& Currencies() const { return currencies_; }

 private:
  planning::CurrencyList currencies_ = planning::CurrencyList::Load();
  HistoryWords words_{currencies_, planning::FindEntry};
};

bool IsWanted(const platform::Platform& platform, const std::string& question) {
  return Ask(platform.toolkit, {.caption = Said(platform, "Undo"),
                                .message = question,
                                .verb = Said(platform, "Undo"),
                                .cancel = Said(platform, "Cancel")});
}

}  // namespace

platform::WindowParts HistoryTools::Parts() {
  return {.tools = {{.id = kHistory,
                     .caption = "History...",
                     .category = "Planning",
                     .description = "Shows who changed the calendar and when, and undoes changes",
                     .shortcut = "Ctrl+H"},
                    {.id = kUndo,
                     .caption = "Undo",
                     .category = "Planning",
                     .description = kUndoes,
                     .shortcut = "Ctrl+Z"},
                    {.id = kDayHistory,
                     .caption = "History of the day...",
                     .category = "Planning",
                     .description = "Shows who changed the day and when"}},
          .bar = {kHistory, kUndo},
          .menu = {kDayHistory}};
}

void HistoryTools::DayMenuOpens(bool is_of_day) { scene_.Tools().SetToolEnabled(kDayHistory, is_of_day); }

bool HistoryTools::RunTool(const std::string& id) {
  if (id == kHistory) {
    OpenHistory();
  } else if (id == kDayHistory) {
    OpenDayHistory();
  } else if (id == kUndo) {
    Undo();
  } else {
    return false;
  }
  return true;
}

void HistoryTools::OpenHistory() {
  const auto calendar = scene_.OnShow();
  if (!calendar) return context_.windows.OpenHistory({});
  context_.windows.OpenHistory({.currency = calendar->currency_id, .year = calendar->year});
}

void HistoryTools::OpenDayHistory() {
  const auto calendar = scene_.OnShow();
  const auto day = scene_.CurrentDay();
  if (!calendar || !day) return;
  context_.windows.OpenHistory(
      {.currency = calendar->currency_id, .year = calendar->year, .day_of_year = day->DayOfYear()});
}

void HistoryTools::RefreshUndoLater() {
  // Until then it undoes all the same, and asks before.
  scene_.Tools().SetToolEnabled(kUndo, scene_.OnShow().has_value());
  scene_.Tools().SetToolDescription(kUndo, Said(context_.platform, kUndoes));
  refresh_ = context_.platform.toolkit.After(
      kRestMilliseconds, [this] { RunHandler(context_.platform, [this] { RefreshUndo(); }); });
}

void HistoryTools::RefreshUndo() {
  const auto calendar = scene_.OnShow();
  std::string description = Said(context_.platform, kUndoes);
  bool can_undo = false;
  try {
    const auto own = calendar ? Teller().OwnLastChange(*calendar) : std::nullopt;
    can_undo = own.has_value();
    if (own) {
      description = Said(context_.platform, "%1: %2", {description, own->told.change});
    }
  } catch (const platform::Failure&) {
    // The days are what the operator asked for; the tool tells what is wrong when it is used.
    can_undo = true;
  }
  scene_.Tools().SetToolEnabled(kUndo, can_undo);
  scene_.Tools().SetToolDescription(kUndo, description);
}

void HistoryTools::Undo() {
  const auto calendar = scene_.OnShow();
  if (!calendar) return;
  const Teller teller;
  const auto own = teller.OwnLastChange(*calendar);
  const std::string name = CalendarName(*calendar);
  if (!own) {
    Tell(Said(context_.platform, "There is no change of %1 of yours to undo.", {name}));
    return RefreshUndo();
  }
  planning::ActionStack& actions = context_.windows.Actions();
  actions.DropUndone();
  if (auto* const action = actions.JointActionOf(own->entry.id)) return UndoTogether(*action, *own, name);
  const platform::Platform& platform = context_.platform;
  if (!IsWanted(platform, Said(platform, "Undo in %1: %2?", {name, own->told.change}))) return;
  const PlanningWindows::Changed changed{{calendar->currency_id, calendar->year}};
  planning::UndoOutcome outcome;
  try {
    outcome = planning::UndoTold(own->entry, teller.Currencies(),
                                 Said(platform, "Undoing in %1: %2", {name, own->told.change}));
  } catch (const platform::Failure&) {
    // With its answer lost it may be done all the same.
    context_.windows.TellChanged(changed);
    throw;
  }
  if (outcome.kind != planning::UndoOutcome::Kind::kDone) {
    return Tell(teller.Words().WhyNotUndone(own->entry, outcome));
  }
  context_.windows.TellChanged(changed);
}

void HistoryTools::UndoTogether(planning::ActionCalls& action, const OwnChange& own,
                                const std::string& name) {
  const auto others = static_cast<std::int64_t>(action.Count()) - 1;
  const platform::Platform& platform = context_.platform;
  if (!IsWanted(platform,
                SaidOfNumber(platform, others,
                             "Undo in %1: %2, and the %n other change that was made in the same step?",
                             "Undo in %1: %2, and the %n other changes that were made in the same step?",
                             {name, own.told.change}))) {
    return;
  }
  const DaysOutcome outcome = UndoAction(action);
  if (outcome.changed) context_.windows.TellChanged(*outcome.changed);
  ShowProblems(outcome, scene_.Window());
}

void HistoryTools::Tell(const std::string& text) const {
  Inform(context_.platform.toolkit, Said(context_.platform, "Undo"), text);
}

}  // namespace ferrowind
