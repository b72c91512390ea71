#include "ferrowind/views/planning/plan_table.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using planning::PlanLine;
using platform::CellMark;
using platform::CellTone;
using platform::TableCell;

CellMark MarkOf(const PlanLine& line) {
  switch (line.kind) {
    case PlanLine::Kind::kNotPlanned:
      return CellMark::kError;
    case PlanLine::Kind::kIncomplete:
      return CellMark::kWarning;
    case PlanLine::Kind::kCalendar:
      return CellMark::kNone;
    case PlanLine::Kind::kBook:
      return line.is_taken.value_or(false) ? CellMark::kAdded : CellMark::kWarning;
    case PlanLine::Kind::kDay:
      break;
  }
  if (line.is_blocked) return CellMark::kError;
  switch (line.action) {
    case almanac::PlanAction::kKeep:
      return CellMark::kKept;
    case almanac::PlanAction::kAdd:
      return CellMark::kAdded;
    case almanac::PlanAction::kReplace:
      return CellMark::kReplaced;
    case almanac::PlanAction::kRemove:
      return CellMark::kRemoved;
    case almanac::PlanAction::kException:
      return CellMark::kException;
  }
  return CellMark::kNone;
}

/// In English.
//: said
std::string ActionOf(const PlanLine& line) {
  switch (line.kind) {
    case PlanLine::Kind::kNotPlanned:
      return "no plan";
    case PlanLine::Kind::kIncomplete:
      return "incomplete";
    case PlanLine::Kind::kCalendar:
    case PlanLine::Kind::kBook:
      return "";
    case PlanLine::Kind::kDay:
      return std::string(almanac::TextOf(line.action));
  }
  return "";
}

/// What stays as it is steps back, but not what somebody should look at first.
CellTone ToneOf(const PlanLine& line) {
  if (line.kind == PlanLine::Kind::kCalendar) return CellTone::kLoud;
  const bool stays = line.kind == PlanLine::Kind::kDay && !line.is_taken.value_or(false);
  return stays && !line.is_conflict ? CellTone::kQuiet : CellTone::kNormal;
}

}  // namespace

PlanTable::PlanTable(const platform::Platform& platform, platform::Table& table, planning::PlanBatch& batch,
                     std::function<void()> on_decision)
    : platform_(platform), table_(table), batch_(batch), on_decision_(std::move(on_decision)) {
  decided_ = table_.OnCheckChange(
      [this](const std::string&, bool) { RunHandler(platform_, [this] { TakeDecisions(); }); });
}

void PlanTable::SetColumns() {
  if (std::exchange(has_calendar_column_, NamesCalendars()) == NamesCalendars()) return;
  std::vector<platform::TableColumn> columns;
  //: says 2
  const auto add = [&](const char* key, const char* caption) {
    columns.push_back({.key = key, .caption = Said(platform_, caption)});
  };
  if (NamesCalendars()) add("Calendar", "Calendar");
  add("Date", "Date");
  // Of many calendars, weekdays stand beside the dates and actions before what should be: the reason, by
  // which the operator decides, needs the room.
  if (!IsOfMany()) add("Weekday", "Weekday");
  add("Now", "Now");
  add("Should", "Should be");
  if (!IsOfMany()) add("Action", "Action");
  add("Why", "Why");
  columns.back().stretches = true;
  table_.SetColumns(columns);
}

void PlanTable::Show(const planning::PlanLineFilter& filter) {
  filter_ = filter;
  SetColumns();
  ShowAnew();
}

void PlanTable::ShowAnew() {
  lines_ = planning::LinesOf(batch_.Calendars(), filter_);
  std::vector<platform::TableRow> rows;
  rows.reserve(lines_.size());
  for (const PlanLine& line : lines_) rows.push_back(RowOf(line));
  table_.SetRows(rows);
  // A row that was there before has kept its box as it was.
  for (const PlanLine& line : lines_) {
    if (line.is_taken && table_.Checked(line.key) != *line.is_taken) {
      table_.SetChecked(line.key, *line.is_taken);
    }
  }
}

void PlanTable::AddPlace(const PlanLine& line, CellTone tone, platform::TableRow& row) const {
  const auto add = [&](std::string text) -> TableCell& {
    return row.cells.emplace_back(TableCell{.text = std::move(text), .tone = tone});
  };
  const platform::Locale& locale = platform_.locale;
  const std::string& calendar = batch_.Calendars()[line.calendar].Name();
  if (NamesCalendars()) add(calendar);
  if (line.kind == PlanLine::Kind::kBook) {
    add(Said(platform_, "Rule book"));
  } else if (!line.date) {
    add(line.kind == PlanLine::Kind::kCalendar && !NamesCalendars() ? calendar : "");
  } else {
    add(IsOfMany() ? locale.DateText(*line.date) : DateText(locale, *line.date)).order = line.date->Serial();
  }
  if (!IsOfMany()) add(line.date ? locale.WeekdayName(line.date->Weekday()) : "");
}

void PlanTable::AddAction(const PlanLine& line, CellTone tone, platform::TableRow& row) const {
  const bool is_day = line.kind == PlanLine::Kind::kDay;
  const std::string action = Said(platform_, ActionOf(line));
  const std::string should = is_day ? NameOf(line.should) : "";
  if (IsOfMany()) {
    row.cells.push_back({.text = is_day ? should : action, .tone = tone});
    if (is_day) row.cells.back().description = action;
  } else {
    row.cells.push_back({.text = should, .tone = tone});
    row.cells.push_back({.text = action, .tone = tone});
  }
  row.cells.back().mark = MarkOf(line);
}

std::string PlanTable::NameOf(const std::optional<std::string>& rule) const {
  return rule ? *rule : Said(platform_, planning::kOrdinaryDay);
}

platform::TableRow PlanTable::RowOf(const PlanLine& line) const {
  const CellTone tone = ToneOf(line);
  platform::TableRow row{.key = line.key, .checked = line.is_taken};
  AddPlace(line, tone, row);
  row.cells.push_back({.text = line.kind == PlanLine::Kind::kDay ? NameOf(line.now) : "", .tone = tone});
  AddAction(line, tone, row);
  row.cells.push_back({.text = line.why, .tone = tone});
  return row;
}

std::string PlanTable::CurrentSentence() const {
  const auto current = table_.CurrentRow();
  const auto line =
      std::find_if(lines_.begin(), lines_.end(), [&](const PlanLine& each) { return each.key == current; });
  if (line == lines_.end()) return "";
  const std::string& calendar = batch_.Calendars()[line->calendar].Name();
  if (line->kind == PlanLine::Kind::kBook) {
    return Said(platform_, "%1: %2.", {Said(platform_, "Rule book"), line->why});
  }
  if (!line->date) return Said(platform_, "%1: %2.", {calendar, line->why});
  const std::string day = DayText(platform_.locale, *line->date);
  if (batch_.Calendars().size() == 1) return Said(platform_, "%1: %2.", {day, line->why});
  return Said(platform_, "%1, %2: %3.", {calendar, day, line->why});
}

void PlanTable::TakeDecisions() {
  std::vector<const PlanLine*> decided;
  for (const PlanLine& line : lines_) {
    if (line.is_taken && table_.Checked(line.key) != *line.is_taken) decided.push_back(&line);
  }
  // Told for each of several rows that one action has changed, all of which are checked by the first time.
  if (decided.empty()) return;
  // What is decided about a calendar holds for its days, unless something is decided about them as well.
  std::stable_partition(decided.begin(), decided.end(),
                        [](const PlanLine* line) { return line->kind == PlanLine::Kind::kCalendar; });
  for (const PlanLine* const line : decided) {
    planning::PlannedCalendar& calendar = batch_.At(line->calendar);
    if (line->kind == PlanLine::Kind::kCalendar) {
      calendar.TakeAll(!*line->is_taken);
    } else if (line->kind == PlanLine::Kind::kBook) {
      calendar.TakeBook(!*line->is_taken);
    } else {
      calendar.Take(line->date->DayOfYear(), !*line->is_taken);
    }
  }
  ShowAnew();
  on_decision_();
}

}  // namespace ferrowind
