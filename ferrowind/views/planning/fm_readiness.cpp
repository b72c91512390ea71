#include "ferrowind/views/planning/fm_readiness.h"

#include <algorithm>
#include <utility>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/planning/readiness_words.h"

namespace ferrowind {
namespace {

using almanac::FindingSubject;
using planning::CalendarKey;
using planning::CurrencyReadiness;
using platform::ControlKind;
using platform::ControlOf;
using platform::TableCell;
using platform::TableRow;

constexpr const char* kCodeColumn = "code";
constexpr const char* kNameColumn = "name";

platform::FormDesign Design() {
  platform::FormDesign design = {
      .name = "fmReadiness",
      .caption = "Readiness",
      .client_width = 13500,
      .client_height = 8700,
      .closes_by_escape = true,
      .controls = {{ControlKind::kLabel, "lblUrgent"},
                   {ControlKind::kLabel, "lblSummary"},
                   {ControlKind::kLabel, "lblProblem"},
                   {.kind = ControlKind::kTable, .name = "tblBoard", .selects_cells = true},
                   {ControlKind::kLabel, "lblFindings"},
                   {.kind = ControlKind::kTable, .name = "tblFindings", .selects_many = true, .sorts = true},
                   {ControlKind::kSplitter, "spBoard"},
                   {ControlKind::kButton, "cmdRefresh", "Refresh"},
                   {ControlKind::kButton, "cmdHistory", "History..."},
                   {ControlKind::kButton, "cmdBook", "Rule book..."},
                   {ControlKind::kButton, "cmdPlan", "Year plan..."},
                   {ControlKind::kButton, "cmdPrepareAll", "Prepare all..."}}};
  // Last, so that the access keys of the others stay what they are.
  design.controls.push_back({ControlKind::kButton, "cmdImport", "Import..."});
  design.controls.push_back({ControlKind::kButton, "cmdExport", "Export..."});
  SilenceBar::AddTo(design);
  return design;
}

bool IsAboutBook(const FindingLine& line) {
  return line.subject == FindingSubject::kNoBook || line.subject == FindingSubject::kFaultyBook;
}

}  // namespace

std::shared_ptr<fmReadiness> fmReadiness::Create(const PlanningContext& context, ReadinessDoors doors) {
  std::shared_ptr<fmReadiness> window(new fmReadiness(context, std::move(doors)));
  window->Subscribe();
  return window;
}

ReadinessDoors fmReadiness::DoorsTo(PlanningWindows& windows) {
  return {.open_year_plan = [&windows](const auto& calendars,
                                       const auto& known) { windows.OpenYearPlan(calendars, known); },
          .open_rule_book = [&windows](std::int32_t currency) { windows.OpenRuleBook(currency); },
          .open_history = [&windows] { windows.OpenHistory({}); },
          .open_import = [&windows](const auto& currency, auto year) { windows.OpenImport(currency, year); },
          .open_export = [&windows](const auto& currency, auto year) { windows.OpenExport(currency, year); }};
}

fmReadiness::fmReadiness(const PlanningContext& context, ReadinessDoors doors)
    : context_(context),
      doors_(std::move(doors)),
      form_(context.platform.toolkit.CreateForm(Said(context.platform, Design()))),
      lblUrgent_(ControlOf<platform::Label>(*form_, "lblUrgent")),
      lblSummary_(ControlOf<platform::Label>(*form_, "lblSummary")),
      lblProblem_(ControlOf<platform::Label>(*form_, "lblProblem")),
      tblBoard_(ControlOf<platform::Table>(*form_, "tblBoard")),
      lblFindings_(ControlOf<platform::Label>(*form_, "lblFindings")),
      tblFindings_(ControlOf<platform::Table>(*form_, "tblFindings")),
      cmdRefresh_(ControlOf<platform::Button>(*form_, "cmdRefresh")),
      cmdHistory_(ControlOf<platform::Button>(*form_, "cmdHistory")),
      cmdBook_(ControlOf<platform::Button>(*form_, "cmdBook")),
      cmdPlan_(ControlOf<platform::Button>(*form_, "cmdPlan")),
      cmdPrepareAll_(ControlOf<platform::Button>(*form_, "cmdPrepareAll")),
      cmdImport_(ControlOf<platform::Button>(*form_, "cmdImport")),
      cmdExport_(ControlOf<platform::Button>(*form_, "cmdExport")),
      silence_bar_(context.platform, *form_) {}

std::function<void()> fmReadiness::Running(void (fmReadiness::*command)()) {
  return [window = weak_from_this(), command] {
    const auto keep = window.lock();
    if (!keep) return;
    RunHandler(keep->context_.platform, [&] { ((*keep).*command)(); });
  };
}

void fmReadiness::Subscribe() {
  const auto closing = Running(&fmReadiness::Closing);
  const auto changed = Running(&fmReadiness::Read);
  subscriptions_.push_back(form_->OnLoad(Running(&fmReadiness::Load)));
  subscriptions_.push_back(form_->OnCloseQuery([closing](bool& is_refused) {
    if (!is_refused) closing();
  }));
  subscriptions_.push_back(tblBoard_.OnActivate(Running(&fmReadiness::OpenPlanOfCell)));
  subscriptions_.push_back(tblBoard_.OnCurrentChange(Running(&fmReadiness::EnableButtons)));
  subscriptions_.push_back(tblFindings_.OnActivate(Running(&fmReadiness::OpenFinding)));
  subscriptions_.push_back(cmdRefresh_.OnClick(Running(&fmReadiness::Read)));
  subscriptions_.push_back(cmdHistory_.OnClick(Running(&fmReadiness::OpenHistory)));
  subscriptions_.push_back(cmdBook_.OnClick(Running(&fmReadiness::OpenBook)));
  subscriptions_.push_back(cmdPlan_.OnClick(Running(&fmReadiness::OpenPlanOfCell)));
  subscriptions_.push_back(cmdImport_.OnClick(Running(&fmReadiness::OpenImport)));
  subscriptions_.push_back(cmdExport_.OnClick(Running(&fmReadiness::OpenExport)));
  subscriptions_.push_back(cmdPrepareAll_.OnClick(Running(&fmReadiness::PrepareAll)));
  subscriptions_.push_back(
      context_.windows.OnChanged([changed](const PlanningWindows::Changed&) { changed(); }));
}

std::string fmReadiness::Say(const std::string& text, const std::vector<std::string>& arguments) const {
  return Said(context_.platform, text, arguments);
}

// Showing and closing
// ------------------------------------------------------------------------------------------------------------

void fmReadiness::Show() { form_->Show(); }

void fmReadiness::ShowInFront() {
  form_->Show();
  form_->Raise();
}

bool fmReadiness::Close() { return form_->Unload(); }

void fmReadiness::Refresh() { Running (&fmReadiness::Read)(); }

void fmReadiness::Load() {
  RunStep([this] { placement_.Restore(context_.platform.toolkit, *form_); });
  lblUrgent_.SetVisible(false);
  lblProblem_.SetVisible(false);
  tblFindings_.SetColumns({{"level", Say("Level")},
                           {"currency", Say("Currency")},
                           {"year", Say("Year")},
                           {"finding", Say("Finding"), platform::CellAlignment::kLeading, true}});
  EnableButtons();
  Read();
  silence_bar_.Start(Running(&fmReadiness::ReadWhatIsMissing));
}

void fmReadiness::Closing() {
  has_closed_ = true;
  silence_bar_.Stop();
  placement_.Save(*form_);
}

// What is on show
// ----------------------------------------------------------------------------------------------------------------

void fmReadiness::Read() {
  if (has_closed_) return;
  const ActionScope reading(context_.platform.action_observer, platform::ActionKind::kRefresh);
  try {
    report_ = context_.windows.Readiness().Read(context_.platform.clock.Today());
  } catch (const platform::Interruption&) {
    throw;
  } catch (const platform::Failure& failure) {
    return ShowProblem(failure.Description());
  }
  ShowReport();
}

void fmReadiness::ReadWhatIsMissing() {
  if (lblProblem_.Visible()) Read();
}

void fmReadiness::ShowProblem(const std::string& problem) {
  lblProblem_.SetText(Say(report_
                              ? "What stands here may be out of date, for the database could not be read: %1"
                              : "The database could not be read: %1",
                          {problem}));
  lblProblem_.SetVisible(true);
  if (!report_) tblBoard_.SetEmptyText(Say("Nothing could be read"));
}

void fmReadiness::ShowReport() {
  const ReadinessWords words(context_.platform, *report_);
  lblProblem_.SetVisible(false);
  const std::string urgent = words.Urgent();
  lblUrgent_.SetText(urgent);
  lblUrgent_.SetVisible(!urgent.empty());
  lblSummary_.SetText(words.Summary());
  ShowBoard();
  ShowFindings();
  cmdPrepareAll_.SetCaption(Say("Prepare all for %1...", {std::to_string(YearToPrepare())}));
  EnableButtons();
}

void fmReadiness::ShowBoard() {
  const ReadinessWords words(context_.platform, *report_);
  std::vector<TableRow> rows;
  for (const CurrencyReadiness& currency : report_->currencies) {
    TableRow row{currency.currency.code, {{currency.currency.code}, {currency.currency.name}}, {}};
    for (const almanac::YearReadiness& year : currency.years) row.cells.push_back(words.Cell(currency, year));
    rows.push_back(std::move(row));
  }
  // Columns that stay keep what the operator has chosen.
  const bool has_other_years = first_year_on_show_ != report_->FirstYear();
  if (has_other_years) ShowYears(words);
  tblBoard_.SetEmptyText(Say("There is no calendar and no rule book"));
  tblBoard_.SetRows(rows);
  if (has_other_years) tblBoard_.SetCurrentColumn(std::to_string(report_->NextYear()));
}

void fmReadiness::ShowYears(const ReadinessWords& words) {
  std::vector<platform::TableColumn> columns = {
      {kCodeColumn, Say("Currency")}, {kNameColumn, Say("Name"), platform::CellAlignment::kLeading, true}};
  for (int year = report_->FirstYear(); year <= report_->LastYear(); ++year) {
    columns.push_back({std::to_string(year), words.YearCaption(year)});
  }
  tblBoard_.SetColumns(columns);
  first_year_on_show_ = report_->FirstYear();
}

void fmReadiness::ShowFindings() {
  const ReadinessWords words(context_.platform, *report_);
  findings_ = FindingLines(context_.platform, *report_);
  lblFindings_.SetText(FindingsTitle(context_.platform, findings_));
  std::vector<TableRow> rows;
  std::int64_t place = 0;
  for (const FindingLine& line : findings_) {
    TableCell level = words.LevelCell(line.level);
    level.order = place++;
    const TableCell currencies{.text = CurrenciesOf(context_.platform, line),
                               .description = NamesOfSeveral(line)};
    const std::string year = line.year ? std::to_string(*line.year) : std::string();
    rows.push_back({line.key, {level, currencies, {year}, {line.sentence}}, {}});
  }
  tblFindings_.SetEmptyText(Say("All calendars are as planned, as far as it is published"));
  tblFindings_.SetRows(rows);
}

void fmReadiness::EnableButtons() {
  const bool has_way = doors_.open_year_plan != nullptr;
  const bool is_chosen = ChosenCalendar().has_value();
  cmdBook_.SetEnabled(doors_.open_rule_book != nullptr && is_chosen);
  cmdPlan_.SetEnabled(has_way && is_chosen);
  cmdPrepareAll_.SetEnabled(has_way && report_ && !report_->ToPrepare(YearToPrepare()).empty());
  cmdHistory_.SetEnabled(doors_.open_history != nullptr);
  cmdImport_.SetEnabled(doors_.open_import != nullptr);
  cmdExport_.SetEnabled(doors_.open_export != nullptr);
}

int fmReadiness::YearToPrepare() const {
  for (int year = report_->NextYear(); year <= report_->LastYear(); ++year) {
    if (!report_->ToPrepare(year).empty()) return year;
  }
  return report_->NextYear();
}

// Ways to the plans
// ---------------------------------------------------------------------------------------------------------------

const CurrencyReadiness* fmReadiness::CurrencyOfCode(const std::string& code) const {
  const auto& currencies = report_->currencies;
  const auto found = std::find_if(currencies.begin(), currencies.end(),
                                  [&](const auto& currency) { return currency.currency.code == code; });
  return found == currencies.end() ? nullptr : &*found;
}

std::optional<CalendarKey> fmReadiness::ChosenCalendar() const {
  const std::optional<std::string> code = tblBoard_.CurrentRow();
  if (!report_ || !code) return std::nullopt;
  const CurrencyReadiness* const currency = CurrencyOfCode(*code);
  if (currency == nullptr) return std::nullopt;
  const std::string column = tblBoard_.CurrentColumn().value_or(kCodeColumn);
  const bool is_year = column != kCodeColumn && column != kNameColumn;
  return CalendarKey(currency->currency.id, is_year ? platform::ToInt32(column) : report_->NextYear());
}

void fmReadiness::OpenPlanOfCell() {
  if (const auto calendar = ChosenCalendar()) OpenPlan({*calendar});
}

void fmReadiness::OpenBook() {
  const auto calendar = ChosenCalendar();
  if (calendar && doors_.open_rule_book) doors_.open_rule_book(calendar->first);
}

void fmReadiness::OpenHistory() {
  if (doors_.open_history) doors_.open_history();
}

void fmReadiness::OpenImport() { OpenExchange(doors_.open_import); }

void fmReadiness::OpenExport() { OpenExchange(doors_.open_export); }

void fmReadiness::OpenExchange(const ReadinessDoors::Exchange& open) {
  if (!open) return;
  const auto calendar = ChosenCalendar();
  if (!calendar) return open("", std::nullopt);
  open(planning::WrittenFor(CurrencyOfCode(*tblBoard_.CurrentRow())->currency), calendar->second);
}

void fmReadiness::OpenFinding() {
  const std::optional<std::string> row = tblFindings_.CurrentRow();
  const auto found = std::find_if(findings_.begin(), findings_.end(),
                                  [&](const FindingLine& line) { return line.key == row; });
  if (found == findings_.end() || found->currencies.empty()) return;
  if (IsAboutBook(*found)) return OpenBookOf(*found);
  std::vector<CalendarKey> calendars;
  for (const planning::Currency& currency : found->currencies) {
    calendars.emplace_back(currency.id, found->year.value_or(report_->NextYear()));
  }
  OpenPlan(calendars);
}

void fmReadiness::OpenBookOf(const FindingLine& line) {
  if (!doors_.open_rule_book) return;
  // Books are written one by one, and the window of one has a way to those of the others.
  const auto& currencies = line.currencies;
  const auto first = std::find_if(currencies.begin(), currencies.end(), [&](const planning::Currency& each) {
    return each.IsLiveIn(report_->today.Year());
  });
  doors_.open_rule_book(first == currencies.end() ? currencies.front().id : first->id);
}

void fmReadiness::PrepareAll() {
  if (!report_) return;
  const std::vector<CalendarKey> calendars = report_->ToPrepare(YearToPrepare());
  if (!calendars.empty()) OpenPlan(calendars);
}

void fmReadiness::OpenPlan(const std::vector<CalendarKey>& calendars) {
  if (!doors_.open_year_plan) return;
  std::vector<planning::Currency> known;
  for (const auto& row : report_->currencies) known.push_back(row.currency);
  doors_.open_year_plan(calendars, planning::CurrencyList(std::move(known)));
}

}  // namespace ferrowind
