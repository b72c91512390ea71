#include "ferrowind/views/planning/fm_year_planner.h"

#include <algorithm>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/views/planning/typed_currencies.h"
#include "ferrowind/views/planning/year_content.h"

namespace ferrowind {
namespace {

using planning::Currency;
using planning::YearOverview;
using platform::ControlKind;
using platform::ControlOf;
using platform::kToolSeparator;
using platform::PageFile;

constexpr const char* kDayMenu = "ID_YearDayMenu";
constexpr const char* kRefresh = "ID_RefreshYear";
constexpr const char* kYearBefore = "ID_YearBefore";
constexpr const char* kYearAfter = "ID_YearAfter";
constexpr const char* kExcept = "ID_ExceptDays";
constexpr const char* kExceptPlain = "ID_ExceptDaysPlain";
constexpr const char* kCloseDays = "ID_CloseDays";
constexpr const char* kUndo = "ID_Undo";
constexpr const char* kDayHistory = "ID_DayHistory";
constexpr const char* kPrint = "ID_PrintYear";
constexpr const char* kSavePdf = "ID_SaveYearPdf";
constexpr const char* kSavePicture = "ID_SaveYearPicture";
constexpr const char* kClose = "ID_CloseYear";
constexpr std::int32_t kTextPanel = 1;

platform::FormDesign Design() {
  platform::FormDesign design = {
      .name = "fmYearPlanner",
      .caption = "Year planner",
      .border = platform::FormBorder::kSizable,
      .start = platform::FormStart::kAsPlaced,
      .client_width = 14400,
      .client_height = 9900,
      .closes_by_escape = true,
      .controls = {
          {ControlKind::kYearView, "yvYear"},
          {ControlKind::kToolBar, "tbYear"},
          {ControlKind::kLabel, "lblCurrencies", "Currencies"},
          {ControlKind::kTextBox, "txtCurrencies"},
          {ControlKind::kLabel, "lblYear", "Year"},
          {ControlKind::kTextBox, "txtYear"},
          {.kind = ControlKind::kButton, .name = "cmdShow", .text = "Show", .is_default_button = true},
          {ControlKind::kLabel, "lblSummary"},
          {ControlKind::kStatusBar, "sbYear"}}};
  SilenceBar::AddTo(design);
  return design;
}

void SetupTools(const platform::Platform& platform, platform::ToolBar& tools) {
  //: says 2 3
  const auto add = [&](const char* id, const char* caption, const char* description, const char* shortcut) {
    tools.AddTool(Said(platform, platform::ToolDesign{.id = id,
                                                      .caption = caption,
                                                      .category = "Year",
                                                      .description = description,
                                                      .shortcut = shortcut}));
  };
  add(kRefresh, "Refresh", "Reads the calendars anew", "F5");
  add(kYearBefore, "Previous year", "Shows the year before", "Alt+PgUp");
  add(kYearAfter, "Next year", "Shows the year after", "Alt+PgDown");
  add(kExceptPlain, "Except days", "Makes the selected days working days by exception, without a reason",
      "Ctrl+Shift+E");
  add(kExcept, "Except days with message ...",
      "Makes the selected days working days by exception, with one reason", "Ctrl+E");
  add(kCloseDays, "Close selected days as ...",
      "Closes the selected days that are open, as a holiday that was announced for once", "Ctrl+L");
  add(kUndo, "Undo",
      "Undoes the last change that was made in a year planner, in all its calendars and rule books",
      "Ctrl+Z");
  add(kDayHistory, "History of the day...", "Shows who changed the day and when", "Ctrl+H");
  add(kPrint, "Print...", "Prints the year", "Ctrl+P");
  add(kSavePdf, "Save as PDF...", "Writes the year into a file for reading and printing", "Ctrl+S");
  add(kSavePicture, "Save as picture...", "Writes the year into a PNG file", "Ctrl+Shift+S");
  add(kClose, "Close", "", "Ctrl+W");
  tools.SetBar(Said(platform, "Year"), {kRefresh, kYearBefore, kYearAfter, kToolSeparator, kExcept,
                                        kCloseDays, kUndo, kToolSeparator, kPrint, kSavePdf, kSavePicture});
  tools.AddPopupMenu(kDayMenu, Said(platform, "Day"),
                     {kExceptPlain, kExcept, kCloseDays, kToolSeparator, kDayHistory});
}

}  // namespace

// Starting and closing
// ------------------------------------------------------------------------------------------------

std::shared_ptr<fmYearPlanner> fmYearPlanner::Create(const PlanningContext& context,
                                                     const std::vector<std::int32_t>& currencies, int year) {
  struct Creatable : fmYearPlanner {
    explicit Creatable(const PlanningContext& surroundings) : fmYearPlanner(surroundings) {}
  };
  std::string typed;
  for (const std::int32_t id : currencies) typed += std::to_string(id) + " ";
  auto window = std::make_shared<Creatable>(context);
  window->Show(TypedCurrencies(typed, year), year);
  window->Connect();
  return window;
}

std::string fmYearPlanner::NameFor(const std::vector<std::int32_t>& currencies, int year) {
  std::string name = "fmYearPlanner " + std::to_string(year);
  for (const std::int32_t id : currencies) name += " " + std::to_string(id);
  return name;
}

fmYearPlanner::fmYearPlanner(const PlanningContext& context)
    : context_(context),
      platform_(context.platform),
      windows_(context.windows),
      form_(platform_.toolkit.CreateForm(Said(platform_, Design()))),
      view_(ControlOf<platform::YearView>(*form_, "yvYear")),
      tools_(ControlOf<platform::ToolBar>(*form_, "tbYear")),
      currencies_box_(ControlOf<platform::TextBox>(*form_, "txtCurrencies")),
      year_box_(ControlOf<platform::TextBox>(*form_, "txtYear")),
      summary_(ControlOf<platform::Label>(*form_, "lblSummary")),
      bar_(ControlOf<platform::StatusBar>(*form_, "sbYear")),
      silence_bar_(platform_, *form_) {
  SetupTools(platform_, tools_);
  RefreshUndo();
}

void fmYearPlanner::Connect() {
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
  subscribe(form_->OnLoad(handler(&fmYearPlanner::Form_Load)));
  const auto query_unload = handler(&fmYearPlanner::Form_QueryUnload);
  subscribe(form_->OnCloseQuery([query_unload](bool& is_refused) {
    if (!is_refused) query_unload();
  }));
  subscribe(tools_.OnToolClick(handler(&fmYearPlanner::RunTool)));
  subscribe(tools_.OnToolEnter(handler(&fmYearPlanner::ShowToolDescription)));
  const auto refresh_selection = handler(&fmYearPlanner::RefreshSelection);
  subscribe(tools_.OnToolLeave([refresh_selection](const std::string&) { refresh_selection(); }));
  subscribe(ControlOf<platform::Button>(*form_, "cmdShow").OnClick(handler(&fmYearPlanner::ShowAsTyped)));
  subscribe(view_.OnSelectionChange(refresh_selection));
  subscribe(view_.OnActivate(handler(&fmYearPlanner::ShowDayMenu)));
  subscribe(view_.OnMenuAsked(handler(&fmYearPlanner::ShowDayMenu)));
  subscribe(windows_.OnChanged(handler(&fmYearPlanner::ReadAnewAfter)));
}

void fmYearPlanner::ShowInFront() {
  form_->Show();
  form_->Raise();
}

bool fmYearPlanner::Close() { return form_->Unload(); }

void fmYearPlanner::Form_Load() {
  placement_.Restore(platform_.toolkit, *form_);
  silence_bar_.Start();
}

void fmYearPlanner::Form_QueryUnload() {
  has_closed_ = true;
  silence_bar_.Stop();
  placement_.Save(*form_);
}

// Showing
// ------------------------------------------------------------------------------------------------

void fmYearPlanner::Show(const std::vector<Currency>& currencies, int year) {
  overview_ = YearOverview::Load(currencies, year);
  platform::YearContent content = YearContentOf(*overview_, platform_.clock.Today());
  summary_.SetText(content.summary);
  view_.SetContent(std::move(content));
  std::string written;
  for (const Currency& currency : currencies)
    written += (written.empty() ? "" : " ") + planning::WrittenFor(currency);
  currencies_box_.SetText(written);
  year_box_.SetText(std::to_string(year));
  form_->SetCaption(Said(platform_, "Year planner - %1", {HeadingOf(*overview_)}));
  tools_.SetToolEnabled(kYearBefore, year > planning::kFirstCalendarYear);
  tools_.SetToolEnabled(kYearAfter, year < planning::kLastCalendarYear);
  RefreshSelection();
}

void fmYearPlanner::ShowAsTyped() {
  platform::TextBox* typed = &year_box_;
  try {
    const int year = TypedYear(typed->Text());
    typed = &currencies_box_;
    Show(TypedCurrencies(typed->Text(), year), year);
  } catch (const TypingError& error) {
    // Told beside the field, which it is about, and not as a failure of the program.
    summary_.SetText(error.Description() + ".");
    typed->SetFocus();
    typed->SelectAll();
    platform_.toolkit.Beep();
    return;
  }
  view_.SetFocus();
}

void fmYearPlanner::ShowYear(int years_later) {
  std::vector<Currency> currencies;
  for (const auto& calendar : overview_->Calendars()) currencies.push_back(calendar.currency);
  Show(currencies, overview_->Year() + years_later);
}

void fmYearPlanner::ReadAnew() {
  ShowYear(0);
  windows_.Actions().DropUndone();
  RefreshUndo();
}

void fmYearPlanner::ReadAnewAfter(const PlanningWindows::Changed& changed) {
  if (has_closed_) return;
  // Another window may have undone what was done here.
  windows_.Actions().DropUndone();
  RefreshUndo();
  const auto is_changed = [&](const YearOverview::Calendar& calendar) {
    const planning::CalendarKey key(calendar.currency.id, overview_->Year());
    return changed.empty() || std::find(changed.begin(), changed.end(), key) != changed.end();
  };
  const auto& calendars = overview_->Calendars();
  if (std::any_of(calendars.begin(), calendars.end(), is_changed)) ShowYear(0);
}

void fmYearPlanner::RefreshSelection() {
  const auto selected = SelectedDaysOf(*overview_, view_.Selected());
  const bool can_except = !DaysToExcept(*overview_, selected).empty();
  for (const char* tool : {kExceptPlain, kExcept}) tools_.SetToolEnabled(tool, can_except);
  tools_.SetToolEnabled(kCloseDays, HasDayToClose(*overview_, selected));
  const auto* const calendar = CurrentCalendar();
  tools_.SetToolEnabled(kDayHistory, calendar != nullptr && calendar->exists);
  bar_.SetPanelText(kTextPanel, SelectionInWords(*overview_, selected));
}

void fmYearPlanner::ShowToolDescription(const std::string& id) {
  bar_.SetPanelText(kTextPanel, tools_.ToolDescription(id));
}

// Doing
// ------------------------------------------------------------------------------------------------

void fmYearPlanner::RunTool(const std::string& id) {
  struct ToolAction {
    const char* id;
    void (*run)(fmYearPlanner& window);
  };
  static constexpr ToolAction kActions[] = {
      {kRefresh, [](fmYearPlanner& w) { w.ReadAnew(); }},
      {kYearBefore, [](fmYearPlanner& w) { w.ShowYear(-1); }},
      {kYearAfter, [](fmYearPlanner& w) { w.ShowYear(1); }},
      {kExceptPlain, [](fmYearPlanner& w) { w.ExceptDays(); }},
      {kExcept, [](fmYearPlanner& w) { w.ExceptDaysWithReason(); }},
      {kCloseDays, [](fmYearPlanner& w) { w.CloseDays(); }},
      {kUndo, [](fmYearPlanner& w) { w.Undo(); }},
      {kDayHistory, [](fmYearPlanner& w) { w.OpenDayHistory(); }},
      {kPrint, [](fmYearPlanner& w) { (void)w.view_.PrintPages(HeadingOf(*w.overview_)); }},
      {kSavePdf, [](fmYearPlanner& w) { w.Save(PageFile::kPdf); }},
      {kSavePicture, [](fmYearPlanner& w) { w.Save(PageFile::kPng); }},
      {kClose, [](fmYearPlanner& w) { (void)w.Close(); }},
  };
  for (const auto& action : kActions) {
    if (id == action.id) action.run(*this);
  }
}

void fmYearPlanner::ShowDayMenu() { tools_.ShowPopupMenu(kDayMenu); }

void fmYearPlanner::ExceptDays() {
  // A copy: whoever learns of the change may have this window read its calendars anew.
  const YearOverview seen = *overview_;
  const auto days = DaysToExcept(seen, SelectedDaysOf(seen, view_.Selected()));
  Tell(WithCalls(seen, days, [&] { return ExceptDaysWith("", seen, days); }));
}

void fmYearPlanner::ExceptDaysWithReason() {
  // A copy: other windows may have this one read its calendars anew while the operator thinks of the reason.
  const YearOverview seen = *overview_;
  const auto days = DaysToExcept(seen, SelectedDaysOf(seen, view_.Selected()));
  if (days.empty()) return;
  const auto reason = AskForReason(platform_.toolkit);
  if (reason) Tell(WithCalls(seen, days, [&] { return ExceptDaysWith(*reason, seen, days); }));
}

void fmYearPlanner::CloseDays() {
  const YearOverview seen = *overview_;
  Tell(CloseSelectedDays(context_, seen, SelectedDaysOf(seen, view_.Selected())));
}

void fmYearPlanner::Undo() {
  planning::ActionStack& actions = windows_.Actions();
  actions.DropUndone();
  if (auto* const newest = actions.Newest(planning::ActionStack::Origin::kYearPlanner)) {
    Tell(UndoAction(*newest));
  } else {
    RefreshUndo();
  }
}

void fmYearPlanner::RefreshUndo() {
  const auto* const newest = windows_.Actions().Newest(planning::ActionStack::Origin::kYearPlanner);
  tools_.SetToolEnabled(kUndo, newest != nullptr);
}

const YearOverview::Calendar* fmYearPlanner::CurrentCalendar() const {
  const auto current = view_.Current();
  const auto position = current ? CalendarOfKey(*overview_, current->calendar) : std::nullopt;
  return position ? &overview_->Calendars()[*position] : nullptr;
}

void fmYearPlanner::OpenDayHistory() {
  const auto* const calendar = CurrentCalendar();
  if (calendar == nullptr) return;
  windows_.OpenHistory({.currency = calendar->currency.id,
                        .year = overview_->Year(),
                        .day_of_year = view_.Current()->day_of_year});
}

void fmYearPlanner::Tell(const DaysOutcome& outcome) {
  if (has_closed_) return;
  windows_.Actions().Add(planning::ActionStack::Origin::kYearPlanner, outcome.calls);
  RefreshUndo();
  if (outcome.changed) windows_.TellChanged(*outcome.changed);
  if (!outcome.problems.empty()) {
    ReadAnew();
    ShowProblems(outcome, *form_);
  }
  if (!has_closed_ && !outcome.done.empty()) bar_.SetPanelText(kTextPanel, outcome.done);
}

void fmYearPlanner::Save(PageFile kind) {
  const bool is_pdf = kind == PageFile::kPdf;
  const auto path = platform_.toolkit.ChooseFileToSave(
      Said(platform_, is_pdf ? "Save as PDF" : "Save as picture"), HeadingOf(*overview_),
      {is_pdf ? platform::FileKind{Said(platform_, "PDF files"), "pdf"}
              : platform::FileKind{Said(platform_, "PNG pictures"), "png"}});
  if (!path || has_closed_) return;
  view_.SavePages(kind, *path, HeadingOf(*overview_));
  bar_.SetPanelText(kTextPanel, Said(platform_, "Saved as %1", {*path}));
}

}  // namespace ferrowind
