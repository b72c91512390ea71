#include "ferrowind/views/planning/fm_history.h"

#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/moment_text.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/views/planning/fm_as_of.h"
#include "ferrowind/views/planning/fm_calendar_then.h"

namespace ferrowind {
namespace {

using planning::HistoryFilter;
using planning::HistoryList;
using planning::UndoStep;
using platform::ControlKind;
using platform::ControlOf;

constexpr const char* kRefresh = "ID_Refresh";
constexpr const char* kUndo = "ID_UndoChange";
constexpr const char* kRedo = "ID_RedoChange";
constexpr const char* kAsOf = "ID_CalendarAsOf";
constexpr const char* kClose = "ID_CloseHistory";

platform::FormDesign Design() {
  platform::FormDesign design = {
      .name = "fmHistory",
      .caption = "History",
      .border = platform::FormBorder::kSizable,
      .start = platform::FormStart::kAsPlaced,
      .client_width = 14400,
      .client_height = 9000,
      .closes_by_escape = true,
      .controls = {
          {ControlKind::kToolBar, "tbHistory"},
          {ControlKind::kLabel, "lblCalendar", "Calendar"},
          {ControlKind::kDropDownList, "cmbCalendar"},
          {ControlKind::kLabel, "lblPerson", "By"},
          {ControlKind::kDropDownList, "cmbPerson"},
          {.kind = ControlKind::kTable, .name = "tblEntries", .selects_many = true, .sorts = true},
          {ControlKind::kButton, "cmdOlder", "Show older"},
          {ControlKind::kLabel, "lblTold"},
          {.kind = ControlKind::kTable, .name = "tblChanges", .selects_many = true, .sorts = true},
          {ControlKind::kLabel, "lblRemark"},
          {ControlKind::kButton, "cmdUndo", "Undo"},
          {ControlKind::kButton, "cmdRedo", "Redo"},
          {ControlKind::kButton, "cmdThen", "Calendar then"},
          {ControlKind::kButton, "cmdAsOf", "Calendar at..."},
          {.kind = ControlKind::kButton, .name = "cmdClose", .text = "Close", .is_cancel_button = true}}};
  SilenceBar::AddTo(design);
  return design;
}

/// What a button has room for, its own caption in any language included.
std::string Shortened(const std::string& text) {
  constexpr std::size_t kMost = 54;
  if (text.size() <= kMost) return text;
  std::size_t end = kMost;
  // Not within a character.
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  return text.substr(0, end) + "\u2026";
}

std::string Number(std::size_t number) { return std::to_string(number); }

}  // namespace

// Starting and closing
// ------------------------------------------------------------------------------------------------

std::shared_ptr<fmHistory> fmHistory::Create(const PlanningContext& context) {
  struct Creatable : fmHistory {
    explicit Creatable(const PlanningContext& surroundings) : fmHistory(surroundings) {}
  };
  auto window = std::make_shared<Creatable>(context);
  window->Connect();
  return window;
}

fmHistory::fmHistory(const PlanningContext& context)
    : platform_(context.platform),
      windows_(context.windows),
      form_(platform_.toolkit.CreateForm(Said(platform_, Design()))),
      tools_(ControlOf<platform::ToolBar>(*form_, "tbHistory")),
      choice_(platform_, list_.Currencies(),
              {ControlOf<platform::DropDownList>(*form_, "cmbCalendar"),
               ControlOf<platform::DropDownList>(*form_, "cmbPerson")}),
      entries_(ControlOf<platform::Table>(*form_, "tblEntries")),
      older_(ControlOf<platform::Button>(*form_, "cmdOlder")),
      told_(ControlOf<platform::Label>(*form_, "lblTold")),
      changes_(ControlOf<platform::Table>(*form_, "tblChanges")),
      remark_(ControlOf<platform::Label>(*form_, "lblRemark")),
      undo_(ControlOf<platform::Button>(*form_, "cmdUndo")),
      redo_(ControlOf<platform::Button>(*form_, "cmdRedo")),
      then_(ControlOf<platform::Button>(*form_, "cmdThen")),
      as_of_(ControlOf<platform::Button>(*form_, "cmdAsOf")),
      silence_bar_(platform_, *form_) {
  tools_.AddTool(
      Said(platform_, platform::ToolDesign{kRefresh, "Refresh", "History", "Reads the history anew"}));
  tools_.AddTool(
      {.id = kUndo, .caption = Said(platform_, "Undo"), .category = "History", .shortcut = "Ctrl+Z"});
  tools_.AddTool(
      {.id = kRedo, .caption = Said(platform_, "Redo"), .category = "History", .shortcut = "Ctrl+Shift+Z"});
  tools_.AddTool({.id = kAsOf,
                  .caption = Said(platform_, "Calendar at..."),
                  .category = "History",
                  .shortcut = "Ctrl+D"});
  tools_.AddTool(
      {.id = kClose, .caption = Said(platform_, "Close"), .category = "History", .shortcut = "Ctrl+W"});
  tools_.SetBar(Said(platform_, "History"), {kRefresh});
  entries_.SetColumns({{.key = "When", .caption = Said(platform_, "When")},
                       {.key = "Who", .caption = Said(platform_, "Who")},
                       {.key = "Calendar", .caption = Said(platform_, "Calendar")},
                       {.key = "Change", .caption = Said(platform_, "What"), .stretches = true}});
  changes_.SetColumns({{.key = "What", .caption = Said(platform_, "What"), .stretches = true},
                       {.key = "Before", .caption = Said(platform_, "Before"), .stretches = true},
                       {.key = "After", .caption = Said(platform_, "After"), .stretches = true}});
}

void fmHistory::Connect() {
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
  subscribe(form_->OnLoad(handler(&fmHistory::Form_Load)));
  const auto query_unload = handler(&fmHistory::Form_QueryUnload);
  subscribe(form_->OnCloseQuery([query_unload](bool& is_refused) {
    if (!is_refused) query_unload();
  }));
  subscribe(tools_.OnToolClick(handler(&fmHistory::RunTool)));
  choice_.OnChoice(handler(&fmHistory::ShowChosen));
  subscribe(entries_.OnCurrentChange(handler(&fmHistory::ShowCurrent)));
  subscribe(entries_.OnActivate(handler(&fmHistory::OpenCalendarThen)));
  const auto on_click = [&](const char* name, void (fmHistory::*command)()) {
    subscribe(ControlOf<platform::Button>(*form_, name).OnClick(handler(command)));
  };
  on_click("cmdOlder", &fmHistory::ShowOlder);
  on_click("cmdUndo", &fmHistory::Undo);
  on_click("cmdRedo", &fmHistory::Redo);
  on_click("cmdThen", &fmHistory::OpenCalendarThen);
  on_click("cmdAsOf", &fmHistory::OpenCalendarAsOf);
  on_click("cmdClose", &fmHistory::CloseByButton);
  subscribe(windows_.OnChanged(handler(&fmHistory::ReloadAfter)));
}

void fmHistory::ShowInFront() {
  form_->Show();
  form_->Raise();
}

bool fmHistory::Close() { return form_->Unload(); }

void fmHistory::CloseByButton() { (void)Close(); }

void fmHistory::Form_Load() {
  placement_.Restore(platform_.toolkit, *form_);
  entries_.SetFocus();
  silence_bar_.Start();
}

void fmHistory::Form_QueryUnload() {
  has_closed_ = true;
  silence_bar_.Stop();
  placement_.Save(*form_);
}

// Choosing
// ------------------------------------------------------------------------------------------------

void fmHistory::ShowChangesOf(const HistoryFilter& filter) {
  // Another choice is shown by whoever hears of it.
  if (!choice_.Choose(filter)) ShowChosen();
}

void fmHistory::RunTool(const std::string& id) {
  if (id == kRefresh) Reload();
  if (id == kUndo) Undo();
  if (id == kRedo) Redo();
  if (id == kAsOf) OpenCalendarAsOf();
  if (id == kClose) (void)Close();
}

void fmHistory::ShowChosen() {
  const auto chosen = choice_.Chosen();
  if (!chosen) return;
  try {
    list_.Show(chosen->filter, chosen->are_mine);
  } catch (const platform::Failure&) {
    choice_.TakeBack();
    throw;
  }
  choice_.Keep();
  ShowLines();
}

void fmHistory::ShowOlder() {
  list_.ShowOlder();
  ShowLines();
}

void fmHistory::Reload() {
  list_.Reload();
  ShowLines();
}

void fmHistory::ReloadAfter(const PlanningWindows::Changed& /*changed*/) {
  if (!has_closed_) Reload();
}

// Showing
// ------------------------------------------------------------------------------------------------

void fmHistory::ShowLines() {
  std::vector<platform::TableRow> rows;
  for (const HistoryList::Line& line : list_.Lines()) {
    const bool is_undone = list_.IsUndone(line);
    const auto tone = is_undone ? platform::CellTone::kQuiet : platform::CellTone::kNormal;
    const auto cell = [&](std::string text) {
      return platform::TableCell{.text = std::move(text), .tone = tone};
    };
    std::string sentence = line.told.Sentence();
    if (is_undone) {
      sentence = line.told.IsDoing() ? Said(platform_, "%1 (undone)", {sentence})
                                     : Said(platform_, "%1 (redone)", {sentence});
    }
    rows.push_back({.key = std::to_string(line.entry.id),
                    .cells = {{.text = planning::ExactMomentText(platform_.locale, line.entry.moment),
                               .tone = tone,
                               .order = line.entry.id},
                              cell(line.entry.user),
                              cell(line.calendar),
                              cell(std::move(sentence))}});
  }
  is_busy_ = true;
  entries_.SetEmptyText(Said(platform_, "Nothing was changed."));
  entries_.SetRows(rows);
  is_busy_ = false;
  older_.SetVisible(list_.HasOlder());
  ShowCurrent();
}

const HistoryList::Line* fmHistory::CurrentLine() const {
  const auto key = entries_.CurrentRow();
  return key ? list_.Find(std::stoi(*key)) : nullptr;
}

void fmHistory::ShowCurrent() {
  if (is_busy_) return;
  const HistoryList::Line* const line = CurrentLine();
  ShowStep(line);
  then_.SetEnabled(line != nullptr && line->entry.currency && line->entry.year);
  as_of_.SetEnabled(CalendarMeant().has_value());
  tools_.SetToolEnabled(kAsOf, as_of_.Enabled());
  if (line == nullptr) return ShowChanges("", {});
  try {
    ShowChanges(line->told.Sentence() + " \u2014 " + line->entry.user + ", " +
                    planning::ExactMomentText(platform_.locale, line->entry.moment),
                planning::LoadChanges(line->entry, list_.Currencies()));
  } catch (const platform::Failure&) {
    // Those on show are of another entry.
    ShowChanges("", {});
    throw;
  }
}

void fmHistory::ShowChanges(const std::string& told, const planning::EntryChanges& changes) {
  std::vector<platform::TableRow> rows;
  for (const auto& change : changes.changes) {
    rows.push_back({.key = Number(rows.size()),
                    .cells = {{.text = change.what}, {.text = change.before}, {.text = change.behind}}});
  }
  told_.SetText(told);
  changes_.SetEmptyText(told.empty() ? "" : Said(platform_, "Everything stayed as it was."));
  changes_.SetRows(rows);
  remark_.SetText(changes.remark);
  remark_.SetVisible(!changes.remark.empty());
}

void fmHistory::ShowStep(const HistoryList::Line* line) {
  const auto step = line != nullptr ? list_.StepOf(*line) : std::nullopt;
  const auto show = [&](platform::Button& button, const std::string& caption, UndoStep::Kind kind) {
    const bool is_offered = step && step->kind == kind;
    button.SetEnabled(is_offered);
    button.SetCaption(is_offered ? Shortened(Said(platform_, "%1: %2", {caption, line->told.change}))
                                 : caption);
  };
  show(undo_, Said(platform_, "Undo"), UndoStep::Kind::kUndo);
  show(redo_, Said(platform_, "Redo"), UndoStep::Kind::kRedo);
  tools_.SetToolEnabled(kUndo, undo_.Enabled());
  tools_.SetToolEnabled(kRedo, redo_.Enabled());
}

// Doing
// ------------------------------------------------------------------------------------------------

void fmHistory::Undo() { Do(UndoStep::Kind::kUndo); }

void fmHistory::Redo() { Do(UndoStep::Kind::kRedo); }

void fmHistory::Do(UndoStep::Kind kind) {
  const HistoryList::Line* const line = CurrentLine();
  const auto step = line != nullptr ? list_.StepOf(*line) : std::nullopt;
  if (!step || step->kind != kind) return;
  PlanningWindows::Changed changed;
  if (line->entry.currency && line->entry.year) changed = {{*line->entry.currency, *line->entry.year}};
  // The button is disabled afterwards, and the focus would go to the next one.
  entries_.SetFocus();
  std::string why_not;
  try {
    why_not = list_.Do(*step);
  } catch (const platform::Failure&) {
    // With its answer lost it may be done all the same.
    windows_.TellChanged(changed);
    throw;
  }
  // This window learns of it as the others do.
  if (why_not.empty()) return windows_.TellChanged(changed);
  Reload();
  platform_.toolkit.Beep();
  remark_.SetText(why_not);
  remark_.SetVisible(true);
}

void fmHistory::OpenCalendarThen() {
  const HistoryList::Line* const line = CurrentLine();
  if (line != nullptr && line->entry.currency && line->entry.year) windows_.OpenCalendarThen(line->entry.id);
}

std::optional<planning::CalendarKey> fmHistory::CalendarMeant() const {
  const auto key_of = [](const auto& of) -> std::optional<planning::CalendarKey> {
    if (!of.currency || !of.year) return std::nullopt;
    return planning::CalendarKey(*of.currency, *of.year);
  };
  if (const auto chosen = key_of(list_.Shown())) return chosen;
  const HistoryList::Line* const line = CurrentLine();
  return line != nullptr ? key_of(line->entry) : std::nullopt;
}

void fmHistory::OpenCalendarAsOf() {
  const auto calendar = CalendarMeant();
  if (!calendar) return;
  const auto& [currency, year] = *calendar;
  const HistoryList::Line* const line = CurrentLine();
  fmAsOf dialog(platform_, planning::CalendarName(list_.Currencies().FindOrNumber(currency), year),
                line != nullptr ? line->entry.moment : platform::MomentNow(), [&](const std::string& moment) {
                  const auto past = planning::LoadCalendarAsOf(calendar->first, calendar->second, moment);
                  return fmCalendarThen::WhyEmpty(platform_, past.state);
                });
  dialog.ShowModal();
  // The host may have closed this window meanwhile, with all others.
  if (dialog.Chosen() && !has_closed_) windows_.OpenCalendarAsOf(*calendar, *dialog.Chosen());
}

}  // namespace ferrowind
