#include "ferrowind/views/planning/fm_rule_book.h"

#include <algorithm>
#include <utility>

#include "ferrowind/data/confirm.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/platform/values/text_limits.h"
#include "ferrowind/views/planning/day_text.h"
#include "ferrowind/views/planning/filled_box.h"

namespace ferrowind {
namespace {

using planning::Currency;
using planning::RuleDraft;
using platform::Button;
using platform::CellMark;
using platform::ControlDesign;
using platform::ControlKind;
using platform::ControlOf;
using platform::DropDownList;
using platform::Label;
using platform::Table;
using platform::TextBox;

/// How many years the dates of a rule are shown for, from the last one on.
constexpr int kYears = 10;
/// How many years are looked through for what a changed book changes.
constexpr int kComparedYears = 5;
constexpr std::size_t kNamedChanges = 3;

platform::FormDesign Design() {
  std::vector<ControlDesign> controls{
      {ControlKind::kLabel, "lblCurrency", "Currency"},
      {ControlKind::kDropDownList, "cmbCurrency"},
      {ControlKind::kLabel, "lblSince", "Holds since"},
      {ControlKind::kTextBox, "txtSince"},
      {ControlKind::kLabel, "lblPublisher", "Publisher"},
      {.kind = ControlKind::kTextBox, .name = "txtPublisher", .longest_text = platform::kLongestName},
      {ControlKind::kLabel, "lblDocument", "Document"},
      {.kind = ControlKind::kTextBox, .name = "txtDocument", .longest_text = platform::kLongestComment},
      {ControlKind::kTable, "tblRules"},
      {ControlKind::kButton, "cmdAdd", "Add"},
      {ControlKind::kButton, "cmdRemove", "Remove"},
      {ControlKind::kButton, "cmdUp", "Move up"},
      {ControlKind::kButton, "cmdDown", "Move down"}};
  for (ControlDesign& control : RuleFields::Controls()) controls.push_back(std::move(control));
  const std::vector<ControlDesign> others{
      {ControlKind::kTable, "tblYears"},
      {ControlKind::kLabel, "lblOutcome"},
      {.kind = ControlKind::kButton, .name = "cmdSave", .text = "Save"},
      {.kind = ControlKind::kButton, .name = "cmdClose", .text = "Close"}};
  controls.insert(controls.end(), others.begin(), others.end());
  platform::FormDesign design = {.name = "fmRuleBook",
                                 .caption = "Rule book",
                                 .border = platform::FormBorder::kSizable,
                                 .start = platform::FormStart::kAsPlaced,
                                 .client_width = 15600,
                                 .client_height = 9900,
                                 .closes_by_escape = true,
                                 .controls = std::move(controls)};
  SilenceBar::AddTo(design);
  return design;
}

std::string KeyOf(std::size_t position) { return std::to_string(position); }

}  // namespace

std::shared_ptr<fmRuleBook> fmRuleBook::Create(const PlanningContext& context, std::int32_t currency_id) {
  struct Creatable : fmRuleBook {
    explicit Creatable(const PlanningContext& surroundings) : fmRuleBook(surroundings) {}
  };
  auto window = std::make_shared<Creatable>(context);
  window->FillLists();
  window->Read(currency_id);
  window->Connect();
  return window;
}

fmRuleBook::fmRuleBook(const PlanningContext& context)
    : context_(context),
      platform_(context.platform),
      form_(platform_.toolkit.CreateForm(Said(platform_, Design()))),
      cmbCurrency_(ControlOf<DropDownList>(*form_, "cmbCurrency")),
      txtPublisher_(ControlOf<TextBox>(*form_, "txtPublisher")),
      txtDocument_(ControlOf<TextBox>(*form_, "txtDocument")),
      txtSince_(ControlOf<TextBox>(*form_, "txtSince")),
      tblRules_(ControlOf<Table>(*form_, "tblRules")),
      lblOutcome_(ControlOf<Label>(*form_, "lblOutcome")),
      fields_(platform_, *form_, context.tables),
      years_(platform_, ControlOf<Table>(*form_, "tblYears")),
      silence_bar_(platform_, *form_) {}

void fmRuleBook::Connect() {
  // A handler keeps the window alive while it runs: whoever holds it may drop it meanwhile.
  const auto handler = [weak = weak_from_this()](auto member) {
    return [weak, member](auto&&... arguments) {
      if (const auto self = weak.lock())
        RunHandler(self->platform_, [&] { ((*self).*member)(arguments...); });
    };
  };
  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  subscribe(form_->OnLoad(handler(&fmRuleBook::Form_Load)));
  subscribe(form_->OnCloseQuery(handler(&fmRuleBook::Form_QueryUnload)));
  subscribe(cmbCurrency_.OnChoice(handler(&fmRuleBook::cmbCurrency_Choice)));
  subscribe(tblRules_.OnCurrentChange(handler(&fmRuleBook::tblRules_CurrentChange)));
  for (TextBox* box : {&txtPublisher_, &txtDocument_, &txtSince_})
    subscribe(box->OnChange(handler(&fmRuleBook::BookText_Change)));
  fields_.Connect(handler(&fmRuleBook::RuleFields_Change));
  const auto subscribe_button = [&](const char* name, void (fmRuleBook::*member)()) {
    subscribe(ControlOf<Button>(*form_, name).OnClick(handler(member)));
  };
  subscribe_button("cmdAdd", &fmRuleBook::cmdAdd_Click);
  subscribe_button("cmdRemove", &fmRuleBook::cmdRemove_Click);
  subscribe_button("cmdUp", &fmRuleBook::cmdUp_Click);
  subscribe_button("cmdDown", &fmRuleBook::cmdDown_Click);
  subscribe_button("cmdSave", &fmRuleBook::cmdSave_Click);
  subscribe_button("cmdClose", &fmRuleBook::cmdClose_Click);
}

// Opening and closing
// ------------------------------------------------------------------------------------------------

void fmRuleBook::FillLists() {
  const auto list = planning::CurrencyList::Load();
  for (const Currency& currency : list.All()) {
    if (currency.is_money) currencies_.push_back(currency);
  }
  std::sort(currencies_.begin(), currencies_.end(),
            [](const Currency& left, const Currency& right) { return left.code < right.code; });
  for (const Currency& currency : currencies_)
    cmbCurrency_.AddItem(currency.code + " - " + currency.name, currency.id);
  tblRules_.SetColumns({{.key = "name", .caption = Said(platform_, "Rule"), .stretches = true},
                        {"kind", Said(platform_, "Type")},
                        {.key = "expression", .caption = Said(platform_, "Expression"), .stretches = true}});
}

void fmRuleBook::Read(std::int32_t currency_id) {
  const auto found = std::find_if(currencies_.begin(), currencies_.end(),
                                  [&](const Currency& currency) { return currency.id == currency_id; });
  if (found == currencies_.end()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "There is no currency of the number " + std::to_string(currency_id));
  }
  // Read before it takes the place of the draft on show, which a failure leaves there.
  planning::BookDraft draft(*found, context_.tables);
  draft_.emplace(std::move(draft));
  is_filling_ = true;
  FillBox(txtPublisher_, draft_->Publisher());
  FillBox(txtDocument_, draft_->Document());
  FillBox(txtSince_, draft_->Since());
  is_filling_ = false;
  form_->SetCaption(Said(platform_, "Rule book of %1", {planning::UnmistakableCode(*found)}));
  ShowRules();
  ShowRule();
  ShowBookOutcome();
  ShowChosenCurrency();
}

void fmRuleBook::ShowInFront() { form_->Show(); }

bool fmRuleBook::Close() {
  const auto self = shared_from_this();
  return form_->Unload();
}

bool fmRuleBook::MayLeave() const {
  if (!draft_ || !draft_->IsChanged()) return true;
  return Ask(platform_.toolkit,
             {.caption = Said(platform_, "Rule book"),
              .message = Said(platform_, "The rule book of %1 has changes that are not saved. Lose them?",
                              {planning::UnmistakableCode(draft_->Owner())}),
              .verb = Said(platform_, "Lose them"),
              .cancel = Said(platform_, "Cancel"),
              .prefers_cancel = true});
}

void fmRuleBook::Form_Load() {
  placement_.Restore(platform_.toolkit, *form_);
  silence_bar_.Start();
}

void fmRuleBook::Form_QueryUnload(bool& cancel) {
  if (cancel) return;
  // Nothing is lost where the question cannot be asked.
  cancel = true;
  if (!MayLeave()) return;
  cancel = false;
  has_closed_ = true;
  silence_bar_.Stop();
  placement_.Save(*form_);
}

void fmRuleBook::cmbCurrency_Choice() {
  if (is_filling_ || cmbCurrency_.Chosen() < 0) return;
  const std::int32_t chosen = cmbCurrency_.ItemData(cmbCurrency_.Chosen());
  if (chosen == draft_->Owner().id) return;
  try {
    if (MayLeave()) Read(chosen);
  } catch (const platform::Failure&) {
    ShowChosenCurrency();
    throw;
  }
  ShowChosenCurrency();
}

void fmRuleBook::ShowChosenCurrency() {
  is_filling_ = true;
  for (std::int32_t i = 0; i < cmbCurrency_.Count(); ++i) {
    if (cmbCurrency_.ItemData(i) == draft_->Owner().id) cmbCurrency_.Choose(i);
  }
  is_filling_ = false;
}

// Rules
// -------------------------------------------------------------------------------------------------

std::optional<std::size_t> fmRuleBook::Current() const {
  const auto key = tblRules_.CurrentRow();
  if (!key) return std::nullopt;
  return static_cast<std::size_t>(std::stoul(*key));
}

void fmRuleBook::ShowRules() {
  std::vector<platform::TableRow> rows;
  for (std::size_t position = 0; position < draft_->Rules().size(); ++position) {
    const RuleDraft& rule = draft_->Rules()[position];
    const auto fault = draft_->FaultOfExpression(position);
    rows.push_back({.key = KeyOf(position),
                    .cells = {{.text = rule.name},
                              {.text = RuleKindText(platform_, rule.kind)},
                              {.text = rule.expression,
                               .mark = fault ? CellMark::kError : CellMark::kNone,
                               .description = fault.value_or("")}}});
  }
  is_filling_ = true;
  tblRules_.SetRows(rows);
  is_filling_ = false;
}

void fmRuleBook::SetCurrent(std::size_t position) {
  is_filling_ = true;
  tblRules_.SetCurrentRow(KeyOf(position));
  is_filling_ = false;
  ShowRule();
}

void fmRuleBook::ShowRule() {
  const auto current = Current();
  fields_.Show(current ? std::optional(draft_->Rules()[*current]) : std::nullopt);
  ShowRuleOutcome();
  EnableControls();
}

void fmRuleBook::ShowRuleOutcome() {
  const auto current = Current();
  fields_.ShowFault(current ? draft_->FaultOfExpression(*current) : std::nullopt);
  years_.Show(current ? draft_->YearsOf(*current, platform_.clock.Today().Year() - 1, kYears)
                      : std::vector<almanac::RuleYear>());
}

void fmRuleBook::ShowBookOutcome() {
  const auto faults = draft_->Faults();
  lblOutcome_.SetText(OutcomeText(faults));
  ControlOf<Button>(*form_, "cmdSave").SetEnabled(draft_->IsChanged() && faults.empty());
}

std::string fmRuleBook::OutcomeText(const std::vector<std::string>& faults) const {
  if (!draft_->IsChanged()) {
    if (draft_->IsStored()) return Said(platform_, "Nothing is changed.");
    return Said(
        platform_,
        "%1 has no rule book yet, so that nothing can be planned for it. Say who publishes its holidays "
        "and where, add its rules, and save them.",
        {planning::UnmistakableCode(draft_->Owner())});
  }
  if (faults.empty()) return ChangesText();
  const auto others = static_cast<int>(faults.size()) - 1;
  return faults.front() + '.' +
         (others > 0 ? ' ' + SaidOfNumber(platform_, others, "%n more fault.", "%n more faults.")
                     : std::string());
}

std::string fmRuleBook::ChangesText() const {
  const int this_year = platform_.clock.Today().Year();
  const auto changes = draft_->Changes(this_year, kComparedYears);
  const std::string years =
      std::to_string(this_year) + " - " + std::to_string(this_year + kComparedYears - 1);
  const std::string text = YearsText(this_year);
  if (changes.empty())
    return text.empty() ? Said(platform_, "The plans of %1 stay as they are.", {years}) : text;
  return text + (text.empty() ? "" : " ") + DaysText(changes, years);
}

std::string fmRuleBook::YearsText(int first_year) const {
  std::string text;
  //: says 1
  const auto tell = [&](const char* sentence, const std::vector<int>& years) {
    std::string list;
    for (const int year : years) list += (list.empty() ? "" : ", ") + std::to_string(year);
    if (!list.empty()) text += (text.empty() ? "" : " ") + Said(platform_, sentence, {list});
  };
  tell("No plan any more for: %1.", draft_->YearsLost(first_year, kComparedYears));
  tell("A plan from now on for: %1.", draft_->YearsGained(first_year, kComparedYears));
  return text;
}

std::string fmRuleBook::DaysText(const std::vector<planning::PlanChange>& changes,
                                 const std::string& years) const {
  std::string text =
      SaidOfNumber(platform_, static_cast<std::int64_t>(changes.size()),
                   "%n day of the plans of %1 changes:", "%n days of the plans of %1 change:", {years});
  const auto name_of = [this](const std::optional<std::string>& name) {
    return name.value_or(Said(platform_, "working day"));
  };
  for (std::size_t i = 0; i < std::min(changes.size(), kNamedChanges); ++i) {
    text += (i == 0 ? " " : "; ") + Said(platform_, "%1 from %2 to %3",
                                         {DayText(platform_.locale, changes[i].day),
                                          name_of(changes[i].before), name_of(changes[i].after)});
  }
  return text + (changes.size() > kNamedChanges ? "; ..." : ".");
}

void fmRuleBook::EnableControls() {
  const auto current = Current();
  const auto enable = [this](const char* name, bool is_enabled) {
    form_->ControlNamed(name).SetEnabled(is_enabled);
  };
  enable("cmdRemove", current.has_value());
  enable("cmdUp", current && *current > 0);
  enable("cmdDown", current && *current + 1 < draft_->Rules().size());
}

// What the operator does
// -------------------------------------------------------------------------------------------------

void fmRuleBook::BookText_Change() {
  if (is_filling_) return;
  draft_->SetPublisher(txtPublisher_.Text());
  draft_->SetDocument(txtDocument_.Text());
  draft_->SetSince(txtSince_.Text());
  ShowRuleOutcome();
  ShowBookOutcome();
}

void fmRuleBook::tblRules_CurrentChange() {
  if (!is_filling_) ShowRule();
}

void fmRuleBook::RuleFields_Change() {
  const auto current = Current();
  if (!current) return;
  draft_->Change(*current, fields_.Rule());
  ShowRules();
  ShowRuleOutcome();
  ShowBookOutcome();
}

void fmRuleBook::cmdAdd_Click() {
  const auto current = Current();
  const std::size_t position = current ? *current + 1 : draft_->Rules().size();
  draft_->Insert(position, {});
  ShowRules();
  SetCurrent(position);
  ShowBookOutcome();
  fields_.FocusName();
}

void fmRuleBook::cmdRemove_Click() {
  const auto current = Current();
  if (!current) return;
  draft_->Remove(*current);
  ShowRules();
  ShowRule();
  ShowBookOutcome();
}

void fmRuleBook::cmdUp_Click() {
  const auto current = Current();
  if (!current || *current == 0) return;
  draft_->MoveDown(*current - 1);
  ShowRules();
  SetCurrent(*current - 1);
  ShowBookOutcome();
}

void fmRuleBook::cmdDown_Click() {
  const auto current = Current();
  if (!current || *current + 1 >= draft_->Rules().size()) return;
  draft_->MoveDown(*current);
  ShowRules();
  SetCurrent(*current + 1);
  ShowBookOutcome();
}

void fmRuleBook::cmdSave_Click() {
  draft_->Store();
  context_.windows.TellChanged({});
  const Currency owner = draft_->Owner();
  Read(owner.id);
  lblOutcome_.SetText(Said(platform_,
                           "The book of %1 is saved. Its calendars stay as they are until their years are "
                           "planned again.",
                           {planning::UnmistakableCode(owner)}));
}

void fmRuleBook::cmdClose_Click() { (void)Close(); }

}  // namespace ferrowind
