#include "ferrowind/views/planning/selected_days.h"

#include <algorithm>
#include <set>
#include <utility>

#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/calendar_change.h"
#include "ferrowind/planning/day_exceptions.h"
#include "ferrowind/planning/holiday_closing.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/views/dialogs/fm_except_mess.h"
#include "ferrowind/views/planning/fm_close_days.h"
#include "ferrowind/views/planning/year_content.h"

namespace ferrowind {
namespace {

using planning::InWords;
using planning::YearOverview;

std::size_t CountOf(const std::vector<SelectedDays>& selected) {
  std::size_t count = 0;
  for (const auto& of_calendar : selected) count += of_calendar.days.size();
  return count;
}

std::size_t ClosedAmong(const YearOverview::Calendar& calendar, const std::vector<std::int16_t>& days) {
  return static_cast<std::size_t>(
      std::count_if(calendar.content.days.begin(), calendar.content.days.end(), [&](const auto& marked) {
        return marked.IsClosed() && std::binary_search(days.begin(), days.end(), marked.day_of_year);
      }));
}

std::string NameOf(const YearOverview& overview, const YearOverview::Calendar& calendar) {
  return planning::CalendarName(calendar.currency, overview.Year());
}

std::vector<planning::CalendarKey> KeysOf(const YearOverview& overview,
                                          const std::vector<SelectedDays>& selected) {
  std::vector<planning::CalendarKey> keys;
  for (const auto& of_calendar : selected) {
    keys.emplace_back(overview.Calendars()[of_calendar.calendar].currency.id, overview.Year());
  }
  return keys;
}

void AppendSentence(std::string& text, const std::string& sentence) {
  if (!text.empty()) text += "\n";
  text += sentence;
}

}  // namespace

std::vector<SelectedDays> SelectedDaysOf(const YearOverview& overview,
                                         const std::vector<platform::YearCell>& cells) {
  std::vector<std::set<std::int16_t>> days(overview.Calendars().size());
  for (const auto& cell : cells) {
    if (cell.calendar == kJointCalendar) {
      for (auto& of_calendar : days) of_calendar.insert(cell.day_of_year);
    } else if (const auto position = CalendarOfKey(overview, cell.calendar)) {
      days[*position].insert(cell.day_of_year);
    }
  }
  std::vector<SelectedDays> selected;
  for (std::size_t i = 0; i < days.size(); ++i) {
    if (!days[i].empty()) selected.push_back({i, {days[i].begin(), days[i].end()}});
  }
  return selected;
}

std::vector<SelectedDays> DaysToExcept(const YearOverview& overview,
                                       const std::vector<SelectedDays>& selected) {
  std::vector<SelectedDays> to_except;
  for (const auto& [position, days] : selected) {
    auto chosen = planning::DaysToExcept(overview.Calendars()[position].content, days);
    if (!chosen.empty()) to_except.push_back({position, std::move(chosen)});
  }
  return to_except;
}

bool HasDayToClose(const YearOverview& overview, const std::vector<SelectedDays>& selected) {
  return std::any_of(selected.begin(), selected.end(), [&](const SelectedDays& of_calendar) {
    const YearOverview::Calendar& calendar = overview.Calendars()[of_calendar.calendar];
    return calendar.exists && ClosedAmong(calendar, of_calendar.days) < of_calendar.days.size();
  });
}

std::string SelectionInWords(const YearOverview& overview, const std::vector<SelectedDays>& selected) {
  std::size_t closed = 0;
  for (const auto& [position, days] : selected) closed += ClosedAmong(overview.Calendars()[position], days);
  return InWords(CountOf(selected), "%n day selected, %1 of them closed",
                 "%n days selected, %1 of them closed", {std::to_string(closed)});
}

std::optional<std::string> AskForReason(platform::Toolkit& toolkit) {
  fmExceptMess dialog(toolkit);
  dialog.ShowModal();
  if (dialog.Result() != 0) return std::nullopt;
  return dialog.Message();
}

DaysOutcome ExceptDaysWith(const std::string& reason, const YearOverview& overview,
                           const std::vector<SelectedDays>& days) {
  DaysOutcome excepted;
  std::vector<SelectedDays> done;
  PlanningWindows::Changed changed;
  for (const auto& of_calendar : days) {
    const YearOverview::Calendar& calendar = overview.Calendars()[of_calendar.calendar];
    try {
      if (planning::ExceptDays(calendar.currency, calendar.content, of_calendar.days, reason)) {
        done.push_back(of_calendar);
        changed.emplace_back(calendar.currency.id, overview.Year());
      } else {
        AppendSentence(excepted.problems, planning::ChangedMeanwhile(NameOf(overview, calendar)));
      }
    } catch (const platform::Failure& failure) {
      AppendSentence(excepted.problems, failure.Description() + ".");
    }
  }
  if (done.empty()) return excepted;
  excepted.changed = std::move(changed);
  excepted.done = InWords(CountOf(done), "%n day is a working day by exception now",
                          "%n days are working days by exception now");
  return excepted;
}

DaysOutcome CloseSelectedDays(const PlanningContext& context, const YearOverview& overview,
                              const std::vector<SelectedDays>& days) {
  DaysOutcome closed;
  planning::HolidayClosing closing(context.tables, overview, days);
  fmCloseDays dialog(context.platform, closing);
  dialog.ShowModal();
  if (!dialog.IsConfirmed()) return closed;
  planning::ClosingOutcome outcome;
  closed.calls = planning::ActionCalls::Of(KeysOf(overview, days), [&] { outcome = closing.Close(); });
  for (const std::string& problem : outcome.problems) AppendSentence(closed.problems, problem);
  // Rules and books may be others as well as the calendars.
  if (outcome.may_have_changed) closed.changed.emplace();
  if (outcome.days == 0) return closed;
  closed.done = InWords(outcome.days, "%n day is closed now", "%n days are closed now");
  if (outcome.books != 0) {
    closed.done = InWords(outcome.books, "%1 and entered in %n rule book", "%1 and entered in %n rule books",
                          {closed.done});
  }
  return closed;
}

DaysOutcome WithCalls(const YearOverview& overview, const std::vector<SelectedDays>& days,
                      const std::function<DaysOutcome()>& act) {
  DaysOutcome outcome;
  auto calls = planning::ActionCalls::Of(KeysOf(overview, days), [&] { outcome = act(); });
  outcome.calls = std::move(calls);
  return outcome;
}

DaysOutcome UndoAction(planning::ActionCalls& calls) {
  DaysOutcome told;
  const planning::ActionCalls::Outcome outcome = calls.Undo();
  for (const std::string& problem : outcome.problems) AppendSentence(told.problems, problem);
  // Rules and books may be others as well as the calendars.
  if (outcome.may_have_changed) told.changed.emplace();
  if (outcome.undone != 0)
    told.done = InWords(outcome.undone, "%n change is undone", "%n changes are undone");
  return told;
}

void ShowProblems(const DaysOutcome& outcome, platform::Form& window) {
  if (outcome.problems.empty()) return;
  constexpr std::int32_t kError = 3;
  constexpr std::int32_t kOk = 1;
  SharedServicesObject().ShowMessage(outcome.problems, kError, kOk, kOk, &window, "", true, true);
}

}  // namespace ferrowind
