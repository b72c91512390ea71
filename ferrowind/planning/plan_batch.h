#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/plan_lines.h"
#include "ferrowind/planning/planned_calendar.h"

namespace ferrowind::planning {

/// What became of a calendar when its plan was applied or undone.
struct PlanOutcome {
  enum class Kind : std::uint8_t {
    kDone,
    /// Its calendar is done, but not its rule book.
    kDoneInPart,
    /// The database refused: somebody else has changed something meanwhile. Nothing was changed in it.
    kRefused,
    /// The call failed; its calendar shows what came of it, as far as that can be read.
    kFailed,
    /// A call before it has failed, so that it was not tried.
    kNotTried,
  };

  /// The position of the calendar in the batch.
  std::size_t calendar = 0;
  Kind kind = Kind::kDone;
  /// For operators, with the calendar's name in it and a full stop.
  std::string sentence;
  /// How many days the plan has changed; 0 unless it was applied.
  std::size_t changed_days = 0;
};

/// Calendars of the calling thread's database that somebody is about to make as planned, each in one call.
///
/// What cannot be read or planned is told by the calendar that it concerns, so that nothing here fails.
class PlanBatch {
 public:
  /// Plans each of `calendars`, in that order; none twice. `tables` must outlive the batch. While the
  /// currencies cannot be read, calendars are called by those of `known`, and others by the numbers of
  /// theirs.
  PlanBatch(const almanac::DateTables& tables, const std::vector<CalendarKey>& calendars,
            const CurrencyList& known = CurrencyList({}));
  /// Plans the one calendar by a list, which `prepare` matches it with.
  PlanBatch(const almanac::DateTables& tables, const CalendarKey& calendar, Preparer prepare);

  [[nodiscard]] const std::vector<PlannedCalendar>& Calendars() const { return calendars_; }
  /// To decide about days of. Precondition: a position in `Calendars`.
  [[nodiscard]] PlannedCalendar& At(std::size_t position) { return calendars_.at(position); }
  /// Of all days of all calendars.
  [[nodiscard]] DayTotals Totals() const;
  /// How many calendars `Apply` would change.
  [[nodiscard]] std::size_t CalendarsToChange() const;

  /// Plans all calendars anew, as they are by now; what was left out stays left out
  /// (`PlannedCalendar::Plan`).
  void PlanAnew();
  /// The same of the calendars at those positions alone.
  void PlanAnew(const std::vector<std::size_t>& positions);

  /// Changes each calendar that has work, and the rule book that gets days of a list, and plans those that
  /// were tried anew; tells of each, in order. A
  /// calendar that is refused does not keep the others from being changed; a call that fails does.
  std::vector<PlanOutcome> Apply();

  /// Whether there are calls of the last `Apply` that changed anything which are not undone yet.
  [[nodiscard]] bool CanUndo() const { return !applied_.empty(); }
  /// Undoes those calls, the last one first, and plans the calendars anew; tells of each. A call that the
  /// database refuses to undo, because a later one has changed the same, is given up; one that fails is not,
  /// and neither are those before it.
  std::vector<PlanOutcome> Undo();

 private:
  friend class PlanRun;

  /// The calls that have changed a calendar, and the rule book of its currency behind it.
  struct Applied {
    std::size_t calendar = 0;
    /// The code of its currency.
    std::string currency;
    std::vector<HistoryEntry> entries;
  };

  [[nodiscard]] PlanOutcome ApplyOne(std::size_t position);
  /// Enters the days in the rule book of the calendar, and tells of it in `outcome`.
  void EnterInBook(const std::vector<DatedHoliday>& days, PlanOutcome& outcome);
  /// Takes the calls off that are undone or given up.
  [[nodiscard]] PlanOutcome UndoOne(Applied& applied) const;

  const almanac::DateTables& tables_;
  std::vector<PlannedCalendar> calendars_;
  std::vector<Applied> applied_;
};

/// What `Apply` would do, in sentences for operators: "26 calendars: 2912 days, 2704 of them weekends, but
/// not 2 working days by exception. 1 calendar cannot be planned."
[[nodiscard]] std::string SummaryOf(const PlanBatch& batch);

}  // namespace ferrowind::planning
