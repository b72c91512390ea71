#include "ferrowind/views/planning/fm_import.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/planning/typed_currencies.h"

namespace ferrowind {
namespace {

using platform::ControlKind;
using platform::ControlOf;

/// By their places in the list.
constexpr std::int32_t kKeepNames = 0;
constexpr std::int32_t kTakeNames = 1;

platform::FormDesign Design() {
  return {
      .name = "fmImport",
      .caption = "Import a list",
      .border = platform::FormBorder::kSizable,
      .start = platform::FormStart::kAsPlaced,
      .client_width = 10800,
      .client_height = 6000,
      .closes_by_escape = true,
      .controls = {
          {ControlKind::kLabel, "lblFile", "File"},
          {ControlKind::kTextBox, "txtFile"},
          {ControlKind::kButton, "cmdChoose", "Choose..."},
          {ControlKind::kLabel, "lblCurrency", "Currency"},
          {ControlKind::kTextBox, "txtCurrency"},
          {ControlKind::kLabel, "lblYear", "Year"},
          {ControlKind::kTextBox, "txtYear"},
          {ControlKind::kLabel, "lblNames", "Names"},
          {ControlKind::kDropDownList, "cmbNames"},
          {ControlKind::kLabel, "lblOutcome"},
          {ControlKind::kTable, "tblFaults"},
          {ControlKind::kLabel, "lblFault"},
          {.kind = ControlKind::kButton, .name = "cmdPreview", .text = "Preview", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdClose", .text = "Close", .is_cancel_button = true}}};
}

}  // namespace

// Starting and closing
// ------------------------------------------------------------------------------------------------

std::shared_ptr<fmImport> fmImport::Create(const PlanningContext& context) {
  struct Creatable : fmImport {
    explicit Creatable(const PlanningContext& surroundings) : fmImport(surroundings) {}
  };
  auto window = std::make_shared<Creatable>(context);
  window->Connect();
  return window;
}

fmImport::fmImport(const PlanningContext& context)
    : context_(context),
      form_(context.platform.toolkit.CreateForm(Said(context.platform, Design()))),
      file_(ControlOf<platform::TextBox>(*form_, "txtFile")),
      currency_(ControlOf<platform::TextBox>(*form_, "txtCurrency")),
      year_(ControlOf<platform::TextBox>(*form_, "txtYear")),
      names_(ControlOf<platform::DropDownList>(*form_, "cmbNames")),
      outcome_(ControlOf<platform::Label>(*form_, "lblOutcome")),
      faults_(ControlOf<platform::Table>(*form_, "tblFaults")),
      current_fault_(ControlOf<platform::Label>(*form_, "lblFault")) {
  const platform::Platform& platform = context_.platform;
  names_.AddItem(Said(platform, "Closed days keep theirs"), kKeepNames);
  names_.AddItem(Said(platform, "Closed days get the list's"), kTakeNames);
  names_.Choose(kKeepNames);
  year_.SetText(std::to_string(platform.clock.Today().Year()));
  faults_.SetColumns(
      {{.key = "Line", .caption = Said(platform, "Line"), .alignment = platform::CellAlignment::kTrailing},
       {.key = "Fault", .caption = Said(platform, "What is wrong"), .stretches = true}});
  faults_.SetEmptyText(Said(platform, "What cannot be read in the list will stand here"));
  outcome_.SetText(Said(platform, "What the list would change is shown before anything is changed."));
}

void fmImport::Connect() {
  // A handler keeps the window alive while it runs: whoever opened it may drop it meanwhile.
  const auto handler = [weak = weak_from_this()](void (fmImport::*member)()) {
    return [weak, member] {
      if (const auto self = weak.lock()) RunHandler(self->context_.platform, [&] { ((*self).*member)(); });
    };
  };
  const auto on_click = [&](const char* name, void (fmImport::*command)()) {
    subscriptions_.push_back(ControlOf<platform::Button>(*form_, name).OnClick(handler(command)));
  };
  subscriptions_.push_back(form_->OnLoad(handler(&fmImport::Form_Load)));
  const auto query_unload = handler(&fmImport::Form_QueryUnload);
  subscriptions_.push_back(form_->OnCloseQuery([query_unload](bool& is_refused) {
    if (!is_refused) query_unload();
  }));
  subscriptions_.push_back(faults_.OnCurrentChange(handler(&fmImport::ShowCurrentFault)));
  on_click("cmdChoose", &fmImport::ChooseFile);
  on_click("cmdPreview", &fmImport::Preview);
  on_click("cmdClose", &fmImport::CloseByButton);
}

void fmImport::Propose(const std::string& currency, std::optional<int> year) {
  if (!currency.empty()) currency_.SetText(currency);
  if (year) year_.SetText(std::to_string(*year));
}

void fmImport::ShowInFront() {
  form_->Show();
  form_->Raise();
}

bool fmImport::Close() { return form_->Unload(); }

void fmImport::CloseByButton() { (void)Close(); }

void fmImport::Form_Load() {
  placement_.Restore(context_.platform.toolkit, *form_);
  file_.SetFocus();
}

void fmImport::Form_QueryUnload() {
  has_closed_ = true;
  placement_.Save(*form_);
}

// Doing
// ------------------------------------------------------------------------------------------------

void fmImport::ChooseFile() {
  const auto chosen = context_.platform.toolkit.ChooseFileToOpen(Said(context_.platform, "Choose a list"),
                                                                 Said(context_.platform, "Lists of days"),
                                                                 {"ics", "csv", "tsv", "json", "txt"});
  if (!chosen || has_closed_) return;
  file_.SetText(*chosen);
  currency_.SetFocus();
}

std::optional<planning::ListFile> fmImport::Typed() {
  planning::ListFile typed;
  typed.path = platform::Trim(file_.Text());
  if (typed.path.empty()) {
    Refuse(Said(context_.platform, "Choose the file of the list."), file_);
    return std::nullopt;
  }
  platform::TextBox* field = &year_;
  try {
    typed.year = TypedYear(year_.Text());
    field = &currency_;
    const auto currencies = TypedCurrencies(currency_.Text(), typed.year);
    if (currencies.size() == 1) {
      typed.currency = currencies.front();
      typed.takes_names = names_.Chosen() == kTakeNames;
      return typed;
    }
    Refuse(Said(context_.platform, "A list is imported for one currency at a time."), currency_);
  } catch (const TypingError& error) {
    Refuse(Said(context_.platform, "%1.", {error.Description()}), *field);
  }
  return std::nullopt;
}

void fmImport::Preview() {
  faults_.SetRows({});
  ShowCurrentFault();
  planning::ListImport import;
  try {
    const auto typed = Typed();
    if (!typed) return;
    import = planning::PrepareImport(context_.tables, *typed, context_.windows.CalendarFiles());
  } catch (const platform::Interruption&) {
    throw;
  } catch (const exchange::ListError& error) {
    return TellFaults(error.Faults(), error.Count());
  } catch (const platform::Failure& failure) {
    return TellFaults({{0, failure.Description()}}, 1);
  }
  PlanningWindows& windows = context_.windows;
  (void)Close();
  windows.OpenListPlan(import);
}

// Telling
// ------------------------------------------------------------------------------------------------

void fmImport::Refuse(const std::string& why, platform::TextBox& field) {
  outcome_.SetText(why);
  context_.platform.toolkit.Beep();
  field.SetFocus();
  field.SelectAll();
}

void fmImport::TellFaults(const std::vector<exchange::ListFault>& faults, std::size_t count) {
  std::vector<platform::TableRow> rows;
  for (const exchange::ListFault& fault : faults) {
    rows.push_back({.key = std::to_string(rows.size()),
                    .cells = {{.text = fault.line == 0 ? "" : std::to_string(fault.line)},
                              {.text = fault.text, .mark = platform::CellMark::kError}}});
  }
  // First, since the table tells of its current row.
  told_ = faults;
  faults_.SetRows(rows);
  ShowCurrentFault();
  const platform::Platform& platform = context_.platform;
  std::string outcome = Said(platform, "This cannot be imported, and nothing was changed.");
  if (count > faults.size()) {
    outcome += ' ' + Said(platform, "Of %1 faults the first %2 are told.",
                          {std::to_string(count), std::to_string(faults.size())});
  }
  outcome_.SetText(outcome);
  platform.toolkit.Beep();
  faults_.SetFocus();
}

void fmImport::ShowCurrentFault() {
  const auto row = faults_.CurrentRow();
  current_fault_.SetText(row ? told_[static_cast<std::size_t>(platform::ToInt32(*row))].text : "");
}

}  // namespace ferrowind
