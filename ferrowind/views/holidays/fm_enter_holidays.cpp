#include "ferrowind/views/holidays/fm_enter_holidays.h"

#include <utility>

#include "ferrowind/data/confirm.h"
#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/error_table.h"
#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/views/common/additional_parts.h"
#include "ferrowind/views/editor/fm_add_holiday.h"

namespace ferrowind {
namespace {

using platform::ActionKind;
using platform::Button;
using platform::ControlKind;
using platform::ControlOf;

/// The buttons by their index in the control array.
enum ActionIndex : std::size_t { kAdd, kEdit, kRemove, kRestore, kFilter, kAssign };

platform::WindowParts AdditionalParts(const platform::Platform& platform) {
  return platform.additions == nullptr ? platform::WindowParts() : platform.additions->HolidaysParts();
}

platform::FormDesign Design() {
  return {.name = "fmEnterHolidays",
          .caption = "Holidays",
          .border = platform::FormBorder::kSizable,
          .start = platform::FormStart::kAsPlaced,
          .client_width = 12000,
          .client_height = 7500,
          .closes_by_escape = true,
          .controls = {
              {ControlKind::kGrid, "gexHolidays"},
              {ControlKind::kToolBar, "ssatb"},
              {ControlKind::kSplitter, "sssp"},
              {ControlKind::kFrame, "frmEditors"},
              {.kind = ControlKind::kButton, .name = "cmdAction0", .text = "Add", .is_default_button = true},
              {ControlKind::kButton, "cmdAction1", "Edit"},
              {ControlKind::kButton, "cmdAction2", "Remove"},
              {ControlKind::kButton, "cmdAction3", "Restore"},
              {ControlKind::kButton, "cmdAction4", "Show all"},
              {ControlKind::kPanel, "pctAction"},
              {ControlKind::kFrame, "Frame1"},
              {ControlKind::kButton, "cmdAction5", "Assign"}}};
}

}  // namespace

fmEnterHolidays::fmEnterHolidays(const platform::Platform& platform, BusyRunner run_busy,
                                 std::string currency)
    : fmEnterHolidays(platform, AdditionalParts(platform), std::move(run_busy), std::move(currency)) {}

fmEnterHolidays::fmEnterHolidays(const platform::Platform& platform, const platform::WindowParts& additional,
                                 BusyRunner run_busy, std::string currency)
    : platform_(platform),
      run_busy_(std::move(run_busy)),
      currency_(std::move(currency)),
      form_(platform.toolkit.CreateForm(WithControls(Design(), additional))),
      gexHolidays_(ControlOf<platform::Grid>(*form_, "gexHolidays")),
      ssatb_(ControlOf<platform::ToolBar>(*form_, "ssatb")),
      group_by_box_tool_(platform.toolkit, *form_, ssatb_, gexHolidays_),
      list_(platform, gexHolidays_,
            [this](const std::string& text) { cmdAction_[kFilter]->SetCaption(text); }),
      extension_({*form_, gexHolidays_, ssatb_, list_, [this] { Reload(); }}) {
  ssatb_.AddTool({GroupByBoxTool::kId, GroupByBoxTool::kText, "General", GroupByBoxTool::kText,
                  platform::ToolKind::kTwoStateButton});
  AddTools(ssatb_, additional);
  ssatb_.SetBar("ToolBar", WithIds({GroupByBoxTool::kId}, additional.bar));

  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  constexpr Command kCommands[] = {&fmEnterHolidays::Add,          &fmEnterHolidays::Edit,
                                   &fmEnterHolidays::Remove,       &fmEnterHolidays::Restore,
                                   &fmEnterHolidays::ToggleFilter, &fmEnterHolidays::Assign};
  for (const Command command : kCommands) {
    cmdAction_.push_back(&ControlOf<Button>(*form_, "cmdAction" + std::to_string(cmdAction_.size())));
    subscribe(
        cmdAction_.back()->OnClick([this, command] { RunHandler(platform_, [&] { (this->*command)(); }); }));
  }
  subscribe(form_->OnLoad([this] { RunHandler(platform_, [this] { Form_Load(); }); }));
  subscribe(form_->OnCloseQuery([this](bool& is_refused) {
    if (!is_refused) RunHandler(platform_, [this] { Form_QueryUnload(); });
  }));
  subscribe(ssatb_.OnToolClick(
      [this](const std::string& id) { RunHandler(platform_, [&] { ssatb_ToolClick(id); }); }));
  subscribe(gexHolidays_.OnCurrentRowChange([this] { RunHandler(platform_, [this] { RefreshButtons(); }); }));
  subscribe(gexHolidays_.OnUnboundValue(
      [this](platform::RecordSet::Bookmark bookmark, std::int16_t column, platform::Value& receiver) {
        IgnoringFailure([&] { list_.ComputeCell(bookmark, column, receiver); });
      }));
  subscribe(gexHolidays_.OnCellText(
      [this](platform::RecordSet::Bookmark bookmark, std::int16_t column, std::string& text) {
        // No message while the grid paints: a text that cannot be made stays as the grid has it.
        IgnoringFailure([&] { list_.ComputeText(bookmark, column, text); });
      }));
}

// Starting and closing
// ------------------------------------------------------------------------------------------------

bool fmEnterHolidays::Init(std::shared_ptr<GridFields> holiday_headers, std::int32_t mode, std::int32_t year,
                           std::int32_t currency_id, std::int32_t day_of_year) {
  bool is_ready = false;
  RunHandler(platform_, [&] {
    form_->Load();
    target_ = {.mode = mode, .year = year, .currency_id = currency_id, .day_of_year = day_of_year};
    list_.SetHeaders(std::move(holiday_headers));
    OpenAdditions();
    if (!list_.Load()) return;
    SetMode(mode);
    RefreshButtons();
    is_ready = true;
  });
  return is_ready;
}

void fmEnterHolidays::OpenAdditions() {
  if (platform_.additions == nullptr) return;
  extension_.Open(platform_.additions, target_, currency_);
  list_.SetChoice([this](auto rules) { return extension_.RulesToShow(std::move(rules)); });
}

void fmEnterHolidays::SetMode(std::int32_t mode) {
  if (mode == kSingleDayMode) form_->SetCaption(extension_.Caption("Assign holiday for single day"));
  if (mode == kWholeCalendarMode) {
    form_->SetCaption(extension_.Caption("Assign groups holidays for calendar"));
  }
  if (mode == kSingleDayMode || mode == kWholeCalendarMode)
    gexHolidays_.SetMultiSelect(mode == kWholeCalendarMode);
}

void fmEnterHolidays::Form_Load() { placement_.Restore(platform_.toolkit, *form_); }

void fmEnterHolidays::Form_QueryUnload() {
  has_closed_ = true;
  extension_.Closing();
  placement_.Save(*form_);
}

void fmEnterHolidays::ShowModal() { form_->ShowModal(); }

void fmEnterHolidays::Unload() { form_->Unload(); }

bool fmEnterHolidays::ForceClosing() {
  form_->Unload();
  return true;
}

// Commands
// ------------------------------------------------------------------------------------------------------------

void fmEnterHolidays::Assign() {
  if (!extension_.BeforeAssign() || has_closed_) return;
  result_ = 1;
  assignment_.emplace(platform_.action_observer, ActionKind::kAssignRules, [this](auto& about) {
    about.currency = currency_;
    about.year = target_.year;
    if (target_.mode == kSingleDayMode && platform::Date::IsValid(target_.year, 1, 1)) {
      about.day = platform::Date(target_.year, 1, 1).AddDays(target_.day_of_year - 1);
    }
    TellOfSelectedRules(about);
  });
  RunStep([&] {
    const auto rules = list_.SelectedRules();
    run_busy_([&] {
      for (const HolidayRule& rule : rules) {
        // A rule that cannot be read is reported and does not keep the others from being stored.
        RunStep([&] { StoreAssignmentOf(rule); });
      }
    });
  });
  form_->Unload();
}

// What the database answers is not examined, by intention; only the host's observer is told.
void fmEnterHolidays::StoreAssignmentOf(const HolidayRule& rule) {
  try {
    const auto answer = AssignRule(rule, target_);
    if (answer) TellWrite(platform_.action_observer, rule.name, *answer);
  } catch (...) {
    TellFailedWrite(platform_.action_observer, rule.name);
    throw;
  }
}

void fmEnterHolidays::TellOfSelectedRules(platform::OperatorAction& action) const {
  for (const HolidayRule& rule : list_.SelectedRules()) action.rules.push_back(rule.name);
}

void fmEnterHolidays::Remove() {
  if (!IsSureToRemove()) return;
  MarkSelectedRules(ActionKind::kRemoveRules, kRemovedMark, error_index::kCannotRemoveHoliday,
                    AtRefusal::kStop);
}

bool fmEnterHolidays::IsSureToRemove() const {
  const QuestionScope question(platform_.action_observer, ActionKind::kRemoveRules,
                               [this](auto& about) { TellOfSelectedRules(about); });
  return Confirm(platform_.toolkit, "Remove holiday", "Are you sure ?", 1) == 0;
}

// A rule that cannot be restored does not keep the others from it, unlike with "Remove", by intention.
void fmEnterHolidays::Restore() {
  MarkSelectedRules(ActionKind::kRestoreRules, kRestoredMark, error_index::kCannotRestoreHoliday,
                    AtRefusal::kGoOn);
}

void fmEnterHolidays::MarkSelectedRules(ActionKind action, std::int16_t mark, std::int32_t error_index,
                                        AtRefusal at_refusal) {
  const ActionScope scope(platform_.action_observer, action,
                          [this](auto& about) { TellOfSelectedRules(about); });
  RunStep([&] {
    for (const HolidayRule& rule : list_.SelectedRules()) {
      const std::int32_t answer = MarkRule(rule, mark);
      TellWrite(platform_.action_observer, rule.name, answer);
      if (answer == 0) continue;
      ShowErrorMessage(error_index);
      if (at_refusal == AtRefusal::kStop) break;
    }
  });
  Reload();
}

void fmEnterHolidays::Add() { EditRule(kAddRule, nullptr, nullptr); }

void fmEnterHolidays::Edit() {
  const auto rows = list_.SelectedRows();
  if (rows.size() != 1) {
    if (gexHolidays_.MultiSelect()) ShowErrorMessage(error_index::kCannotEditMultiRows);
    return;
  }
  // A record set of the editor's own: the list's moves with every cell that the grid paints.
  EditRule(kEditRule, list_.RecordsAt(rows.front()), list_.Headers());
}

void fmEnterHolidays::EditRule(std::int32_t editor_mode, std::shared_ptr<platform::RecordSet> rule,
                               std::shared_ptr<GridFields> column_map) {
  fmAddHoliday editor(platform_);
  // The calendar has no say in a rule that exists: one without a date is saved with the current one.
  if (editor_mode == kAddRule) editor.SetYear(target_.year);
  if (!editor.Init(editor_mode, list_.HolidayTypes(), list_.FirstWeekday(), std::move(rule),
                   std::move(column_map))) {
    editor.Unload();
    return;
  }
  editor.ShowModal();
  if (editor.Result() != 0) return;
  // An editor that was closed without Ok or Cancel has no action of its own that the reading could belong to.
  const ActionScope reading(platform_.action_observer, ActionKind::kShowRules);
  Reload();
}

void fmEnterHolidays::ToggleFilter() {
  const ActionScope action(platform_.action_observer, ActionKind::kShowRules);
  list_.ToggleFilter();
  Reload();
}

void fmEnterHolidays::Reload() {
  // It may have been closed by the program while a dialog of it was just being answered.
  if (has_closed_) return;
  list_.Load();
  RefreshButtons();
}

void fmEnterHolidays::RefreshButtons() {
  const bool has_rule = list_.HasCurrentRule();
  const bool is_removed = has_rule && list_.IsCurrentRuleRemoved();
  for (const auto index : {kEdit, kRemove, kAssign}) cmdAction_[index]->SetEnabled(has_rule && !is_removed);
  cmdAction_[kRestore]->SetEnabled(is_removed);
}

void fmEnterHolidays::ssatb_ToolClick(const std::string& id) {
  if (id == GroupByBoxTool::kId) {
    group_by_box_tool_.ShowOrHideBox();
  } else {
    extension_.RunTool(id);
  }
}

}  // namespace ferrowind
