#include "ferrowind/views/planning/fm_year_plan.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/views/planning/fm_progress.h"

namespace ferrowind {
namespace {

using planning::PlanOutcome;
using planning::PlanRun;
using platform::ControlKind;
using platform::ControlOf;

constexpr const char* kRefresh = "ID_Refresh";
constexpr const char* kAllDays = "ID_AllDays";
// On no bar, for their keys alone.
constexpr const char* kUndo = "ID_UndoPlan";
constexpr const char* kClose = "ID_ClosePlan";
constexpr std::int32_t kAllCalendars = -1;
/// Fewer calendars are done before anybody could read how far they are.
constexpr std::size_t kLeastWithProgress = 4;

platform::FormDesign Design(std::size_t calendars) {
  platform::FormDesign design = {
      .name = "fmYearPlan",
      .caption = "Year plan",
      .border = platform::FormBorder::kSizable,
      .start = platform::FormStart::kAsPlaced,
      .client_width = 14400,
      .client_height = 8400,
      .closes_by_escape = true,
      .controls = {{ControlKind::kLabel, "lblSummary"},
                   {.kind = ControlKind::kTable, .name = "tblPlan", .selects_many = true, .sorts = true},
                   {ControlKind::kLabel, "lblLine"},
                   {ControlKind::kTable, "tblOutcome"},
                   {ControlKind::kButton, "cmdUndo", "Undo"},
                   {ControlKind::kButton, "cmdApply", "Apply"},
                   {.kind = ControlKind::kButton,
                    .name = "cmdClose",
                    .text = "Close",
                    .is_default_button = true,
                    .is_cancel_button = true},
                   {ControlKind::kToolBar, "tbPlan"}}};
  if (calendars > 1) {
    design.controls.push_back({ControlKind::kLabel, "lblCalendar", "Calendar"});
    design.controls.push_back({ControlKind::kDropDownList, "cmbCalendar"});
  }
  SilenceBar::AddTo(design);
  return design;
}

platform::CellMark MarkOf(PlanOutcome::Kind kind) {
  switch (kind) {
    case PlanOutcome::Kind::kDone:
      return platform::CellMark::kPrepared;
    case PlanOutcome::Kind::kDoneInPart:
    case PlanOutcome::Kind::kRefused:
    case PlanOutcome::Kind::kNotTried:
      return platform::CellMark::kWarning;
    case PlanOutcome::Kind::kFailed:
      return platform::CellMark::kError;
  }
  return platform::CellMark::kNone;
}

bool IsBad(const PlanOutcome& outcome) { return outcome.kind != PlanOutcome::Kind::kDone; }

}  // namespace

// Starting and closing
// ------------------------------------------------------------------------------------------------

struct fmYearPlan::Creatable : fmYearPlan {
  Creatable(const PlanningContext& context, planning::PlanBatch batch, std::string list = {})
      : fmYearPlan(context, std::move(batch), std::move(list)) {}
};

std::shared_ptr<fmYearPlan> fmYearPlan::Create(const PlanningContext& context,
                                               const std::vector<planning::CalendarKey>& calendars,
                                               const planning::CurrencyList& known) {
  auto window = std::make_shared<Creatable>(context, planning::PlanBatch(context.tables, calendars, known));
  window->Connect();
  return window;
}

std::shared_ptr<fmYearPlan> fmYearPlan::CreateOfList(const PlanningContext& context,
                                                     const planning::ListImport& import) {
  auto window = std::make_shared<Creatable>(
      context, planning::PlanBatch(context.tables, import.calendar, planning::ByList(import)), import.source);
  window->TellRemarks(import.remarks);
  window->Connect();
  return window;
}

std::string fmYearPlan::NameFor(const std::vector<planning::CalendarKey>& calendars) {
  std::string name = "fmYearPlan";
  for (const auto& [currency, year] : calendars) {
    name += " " + std::to_string(currency) + "/" + std::to_string(year);
  }
  return name;
}

std::string fmYearPlan::NameFor(const planning::ListImport& import) {
  return NameFor(std::vector{import.calendar}) + " as listed";
}

fmYearPlan::fmYearPlan(const PlanningContext& context, planning::PlanBatch batch, std::string list)
    : platform_(context.platform),
      windows_(context.windows),
      batch_(std::move(batch)),
      list_(std::move(list)),
      form_(platform_.toolkit.CreateForm(Said(platform_, Design(batch_.Calendars().size())))),
      tools_(ControlOf<platform::ToolBar>(*form_, "tbPlan")),
      summary_(ControlOf<platform::Label>(*form_, "lblSummary")),
      lines_(ControlOf<platform::Table>(*form_, "tblPlan")),
      current_line_(ControlOf<platform::Label>(*form_, "lblLine")),
      outcome_(ControlOf<platform::Table>(*form_, "tblOutcome")),
      undo_(ControlOf<platform::Button>(*form_, "cmdUndo")),
      apply_(ControlOf<platform::Button>(*form_, "cmdApply")),
      table_(platform_, lines_, batch_, [this] { RefreshSummary(); }),
      silence_bar_(platform_, *form_) {
  AddTools();
  outcome_.SetColumns({{.key = "Outcome",
                        .caption = Said(platform_, list_.empty() ? "What was done" : "What is to be known"),
                        .stretches = true}});
  outcome_.SetVisible(false);
  if (batch_.Calendars().size() > 1) FillCalendarList();
  ShowLines();
}

void fmYearPlan::AddTools() {
  const platform::ToolDesign tools[] = {
      {kRefresh, "Refresh", "Plan", "Reads the calendars and plans them anew"},
      {kAllDays, "All days", "Plan", "Shows the days that stay as they are and all weekends, too",
       platform::ToolKind::kTwoStateButton},
      {.id = kUndo, .caption = "Undo", .category = "Plan", .shortcut = "Ctrl+Z"},
      {.id = kClose, .caption = "Close", .category = "Plan", .shortcut = "Ctrl+W"}};
  for (const platform::ToolDesign& tool : tools) tools_.AddTool(Said(platform_, tool));
  tools_.SetBar(Said(platform_, "Plan"), {kRefresh, kAllDays});
}

void fmYearPlan::FillCalendarList() {
  filter_ = &ControlOf<platform::DropDownList>(*form_, "cmbCalendar");
  filter_->AddItem(Said(platform_, "All calendars"), kAllCalendars);
  std::int32_t position = 0;
  for (const planning::PlannedCalendar& calendar : batch_.Calendars()) {
    filter_->AddItem(calendar.Name(), position++);
  }
  filter_->Choose(0);
}

void fmYearPlan::Connect() {
  // A handler keeps the window alive while it runs: whoever opened it may drop it meanwhile.
  const auto handler = [weak = weak_from_this()](auto member) {
    return [weak, member](auto&&... arguments) {
      if (const auto self = weak.lock())
        RunHandler(self->platform_, [&] { ((*self).*member)(arguments...); });
    };
  };
  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  subscribe(form_->OnLoad(handler(&fmYearPlan::Form_Load)));
  const auto query_unload = handler(&fmYearPlan::Form_QueryUnload);
  subscribe(form_->OnCloseQuery([query_unload](bool& is_refused) {
    if (!is_refused) query_unload();
  }));
  subscribe(tools_.OnToolClick(handler(&fmYearPlan::RunTool)));
  subscribe(lines_.OnCurrentChange(handler(&fmYearPlan::ShowCurrentLine)));
  if (filter_ != nullptr) subscribe(filter_->OnChoice(handler(&fmYearPlan::ShowLines)));
  subscribe(undo_.OnClick(handler(&fmYearPlan::Undo)));
  subscribe(apply_.OnClick(handler(&fmYearPlan::Apply)));
  subscribe(ControlOf<platform::Button>(*form_, "cmdClose").OnClick(handler(&fmYearPlan::CloseByButton)));
  subscribe(windows_.OnChanged(handler(&fmYearPlan::PlanAnewAfter)));
}

void fmYearPlan::ShowInFront() {
  form_->Show();
  form_->Raise();
}

bool fmYearPlan::Close() { return form_->Unload(); }

void fmYearPlan::CloseByButton() { (void)Close(); }

void fmYearPlan::Form_Load() {
  placement_.Restore(platform_.toolkit, *form_);
  silence_bar_.Start([weak = weak_from_this()] {
    if (const auto self = weak.lock()) self->PlanWhatIsMissing();
  });
}

void fmYearPlan::Form_QueryUnload() {
  has_closed_ = true;
  silence_bar_.Stop();
  placement_.Save(*form_);
}

// Showing
// ------------------------------------------------------------------------------------------------

void fmYearPlan::ShowCaption() {
  const auto& calendars = batch_.Calendars();
  if (!list_.empty()) {
    return form_->SetCaption(Said(platform_, "Import of %1: %2", {calendars.front().Name(), list_}));
  }
  form_->SetCaption(calendars.size() == 1
                        ? Said(platform_, "Plan of %1", {calendars.front().Name()})
                        : SaidOfNumber(platform_, static_cast<std::int64_t>(calendars.size()),
                                       "Plan of %n calendar", "Plans of %n calendars"));
}

void fmYearPlan::ShowLines() {
  // A calendar whose currency could not be read is called by its number until it is.
  ShowCaption();
  planning::PlanLineFilter filter;
  if (filter_ != nullptr && filter_->Chosen() > 0) {
    filter.calendar = static_cast<std::size_t>(filter_->ItemData(filter_->Chosen()));
  }
  filter.shows_all = tools_.ToolPressed(kAllDays);
  table_.Show(filter);
  RefreshSummary();
}

void fmYearPlan::RefreshSummary() {
  std::string summary = planning::SummaryOf(batch_);
  if (const auto shown = table_.Filter().calendar) {
    // What is applied is all of it.
    summary += " " + Said(platform_, "Only %1 is on show.", {batch_.Calendars()[*shown].Name()});
  }
  summary_.SetText(summary);
  apply_.SetEnabled(batch_.CalendarsToChange() != 0);
  undo_.SetVisible(batch_.CanUndo());
  tools_.SetToolEnabled(kUndo, batch_.CanUndo());
  lines_.SetEmptyText(
      Said(platform_, batch_.Totals().taken == 0
                          ? list_.empty() ? "Every day is as planned." : "Every day is as in the list."
                          : "Nothing but weekends is added; \"All days\" shows them."));
  ShowCurrentLine();
}

void fmYearPlan::ShowCurrentLine() { current_line_.SetText(table_.CurrentSentence()); }

void fmYearPlan::Tell(const std::vector<PlanOutcome>& outcomes, const std::string& stopped) {
  // What is not done stands first, where it is seen without scrolling.
  std::vector<platform::TableRow> rows;
  if (!stopped.empty()) {
    rows.push_back({.key = "stopped", .cells = {{.text = stopped, .mark = platform::CellMark::kWarning}}});
  }
  for (const bool is_bad : {true, false}) {
    for (const PlanOutcome& outcome : outcomes) {
      if (IsBad(outcome) != is_bad) continue;
      std::string told = outcome.sentence;
      if (outcome.changed_days != 0) {
        told += " " + SaidOfNumber(platform_, static_cast<std::int64_t>(outcome.changed_days),
                                   "%n day was changed.", "%n days were changed.");
      }
      rows.push_back({.key = std::to_string(outcome.calendar),
                      .cells = {{.text = std::move(told), .mark = MarkOf(outcome.kind)}}});
    }
  }
  outcome_.SetRows(rows);
  outcome_.SetVisible(!rows.empty());
  // There it is read, also by assistive tools, and there no key does anything by mistake.
  if (!rows.empty()) outcome_.SetFocus();
  if (std::any_of(outcomes.begin(), outcomes.end(), IsBad)) platform_.toolkit.Beep();
}

void fmYearPlan::TellRemarks(const std::vector<std::string>& remarks) {
  std::vector<platform::TableRow> rows;
  for (const std::string& remark : remarks) {
    rows.push_back({.key = "remark " + std::to_string(rows.size()),
                    .cells = {{.text = remark, .mark = platform::CellMark::kWarning}}});
  }
  outcome_.SetRows(rows);
  outcome_.SetVisible(!rows.empty());
}

// Doing
// ------------------------------------------------------------------------------------------------

void fmYearPlan::RunTool(const std::string& id) {
  if (id == kAllDays) ShowLines();
  if (id == kRefresh) PlanAnew();
  if (id == kUndo) Undo();
  if (id == kClose) (void)Close();
}

void fmYearPlan::PlanAnew() {
  batch_.PlanAnew();
  Tell({}, {});
  ShowLines();
}

void fmYearPlan::PlanWhatIsMissing() {
  const auto& calendars = batch_.Calendars();
  std::vector<std::size_t> missing;
  for (std::size_t i = 0; i < calendars.size(); ++i) {
    if (calendars[i].Preparation() == nullptr) missing.push_back(i);
  }
  if (missing.empty()) return;
  batch_.PlanAnew(missing);
  ShowLines();
}

void fmYearPlan::Apply() { Do(PlanRun::Kind::kApply); }

void fmYearPlan::Undo() { Do(PlanRun::Kind::kUndo); }

void fmYearPlan::Do(PlanRun::Kind kind) {
  PlanRun run(batch_, kind);
  if (run.All() < kLeastWithProgress) {
    while (run.Next()) run.Step();
  } else {
    try {
      // What is done by then is told, even when the progress cannot be.
      RunStep([&] { ShowProgress(run, kind); });
    } catch (const platform::Interruption&) {
      // This window is gone; the others learn of what is done all the same.
      TellOthers(run.Outcomes());
      throw;
    }
  }
  std::string stopped;
  if (run.Next()) {
    stopped = SaidOfNumber(platform_, static_cast<std::int64_t>(run.All()),
                           "Stopped after %1 of %n calendar; the others are as they were.",
                           "Stopped after %1 of %n calendars; the others are as they were.",
                           {std::to_string(run.Done())});
  }
  ShowDone(run.Finish(), stopped);
}

void fmYearPlan::ShowProgress(PlanRun& run, PlanRun::Kind kind) {
  const bool applies = kind == PlanRun::Kind::kApply;
  const auto next = [&]() -> std::optional<std::string> {
    const auto position = run.Next();
    if (!position) return std::nullopt;
    return Said(
        platform_, applies ? "Applying the plan of %1, %2 of %3." : "Undoing the plan of %1, %2 of %3.",
        {batch_.Calendars()[*position].Name(), std::to_string(run.Done() + 1), std::to_string(run.All())});
  };
  fmProgress progress(platform_, form_->Caption(), {.next = next, .step = [&] { run.Step(); }});
  progress.ShowModal();
}

void fmYearPlan::ShowDone(const std::vector<PlanOutcome>& outcomes, const std::string& stopped) {
  Tell(outcomes, stopped);
  ShowLines();
  TellOthers(outcomes);
}

void fmYearPlan::TellOthers(const std::vector<PlanOutcome>& outcomes) {
  PlanningWindows::Changed changed;
  for (const PlanOutcome& outcome : outcomes) {
    // A call that failed may have come to its end all the same.
    const bool has_changed_nothing =
        outcome.kind == PlanOutcome::Kind::kRefused || outcome.kind == PlanOutcome::Kind::kNotTried;
    if (!has_changed_nothing) changed.push_back(batch_.Calendars()[outcome.calendar].Key());
  }
  if (changed.empty()) return;
  // The rule book may be another as well as the calendar.
  if (!list_.empty()) changed.clear();
  is_telling_ = true;
  windows_.TellChanged(changed);
  is_telling_ = false;
}

void fmYearPlan::PlanAnewAfter(const PlanningWindows::Changed& changed) {
  if (is_telling_ || has_closed_) return;
  const auto& calendars = batch_.Calendars();
  std::vector<std::size_t> positions;
  for (std::size_t i = 0; i < calendars.size(); ++i) {
    const bool is_named = std::find(changed.begin(), changed.end(), calendars[i].Key()) != changed.end();
    if (changed.empty() || is_named) positions.push_back(i);
  }
  if (positions.empty()) return;
  batch_.PlanAnew(positions);
  ShowLines();
}

}  // namespace ferrowind
