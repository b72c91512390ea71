#include "ferrowind/views/editor/fm_add_holiday.h"

#include <utility>

#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/error_table.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/pending_failure.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/text_limits.h"
#include "ferrowind/views/common/close_dialog.h"
#include "ferrowind/views/common/grid_setup.h"
#include "ferrowind/views/common/holiday_types.h"

namespace ferrowind {
namespace {

using platform::Button;
using platform::ControlKind;
using platform::ControlOf;
using platform::DatePicker;
using platform::DropDownList;
using platform::TextBox;

constexpr std::int32_t kDaysInWeek = 7;
constexpr const char* kDateFormat = "d  MMMM";

/// What the procedure answers when a rule, or a removed rule, has the name already.
constexpr std::int32_t kNameInUse = 2;
constexpr std::int32_t kNameOfRemovedRule = 10;

platform::FormDesign Design() {
  return {
      .name = "fmAddHoliday",
      .caption = "Add holiday",
      .border = platform::FormBorder::kClosableDialog,
      .start = platform::FormStart::kCenterOwner,
      .client_width = 5400,
      .client_height = 3900,
      .controls = {
          {ControlKind::kLabel, "lblHolidayType", "Holiday type"},
          {ControlKind::kDropDownList, "cmbHolidayType"},
          {ControlKind::kFrame, "frmFields"},
          {ControlKind::kLabel, "lblName", "Name"},
          {.kind = ControlKind::kTextBox, .name = "txtName", .longest_text = platform::kLongestName},
          {ControlKind::kLabel, "lblDayOfWeek", "Day of week"},
          {ControlKind::kDropDownList, "cmbDayOfWeek"},
          {ControlKind::kLabel, "lblFullDate", "Full date"},
          {ControlKind::kDatePicker, "dtpFullDate"},
          {ControlKind::kDatePicker, "dtpHolidayPoint"},
          {ControlKind::kLabel, "lblComment", "Comment"},
          {.kind = ControlKind::kTextBox, .name = "txtComment", .longest_text = platform::kLongestComment},
          {ControlKind::kButton, "cmdOk", "Ok"},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true}}};
}

/// The first item with that number; -1 without one.
std::int32_t FindItemData(const DropDownList& list, std::int32_t item_data) {
  for (std::int32_t i = 0; i < list.Count(); ++i) {
    if (list.ItemData(i) == item_data) return i;
  }
  return -1;
}

std::int32_t ChosenItemData(const DropDownList& list) {
  const std::int32_t chosen = list.Chosen();
  return chosen < 0 ? 0 : list.ItemData(chosen);
}

void TrimText(TextBox& text_box) { text_box.SetText(platform::Trim(text_box.Text())); }

}  // namespace

fmAddHoliday::fmAddHoliday(const platform::Platform& platform)
    : platform_(platform),
      form_(platform.toolkit.CreateForm(Design())),
      txtName_(ControlOf<TextBox>(*form_, "txtName")),
      txtComment_(ControlOf<TextBox>(*form_, "txtComment")),
      cmbHolidayType_(ControlOf<DropDownList>(*form_, "cmbHolidayType")),
      cmbDayOfWeek_(ControlOf<DropDownList>(*form_, "cmbDayOfWeek")),
      dtpFullDate_(ControlOf<DatePicker>(*form_, "dtpFullDate")),
      dtpHolidayPoint_(ControlOf<DatePicker>(*form_, "dtpHolidayPoint")),
      cmdOk_(ControlOf<Button>(*form_, "cmdOk")) {
  dtpFullDate_.SetCustomFormat(kDateFormat);
  dtpHolidayPoint_.SetCustomFormat(kDateFormat);
  const auto handler = [this](void (fmAddHoliday::*member)()) {
    return [this, member] { RunHandler(platform_, [this, member] { (this->*member)(); }); };
  };
  const auto trim = [this](TextBox& text_box) {
    return [this, &text_box] { RunHandler(platform_, [&text_box] { TrimText(text_box); }); };
  };
  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  subscribe(cmbHolidayType_.OnChoice(handler(&fmAddHoliday::cmbHolidayType_Choice)));
  subscribe(cmbDayOfWeek_.OnChoice(handler(&fmAddHoliday::cmbDayOfWeek_Choice)));
  subscribe(txtName_.OnChange(handler(&fmAddHoliday::txtName_Change)));
  subscribe(txtName_.OnLostFocus(trim(txtName_)));
  subscribe(txtComment_.OnLostFocus(trim(txtComment_)));
  subscribe(cmdOk_.OnClick(handler(&fmAddHoliday::cmdOk_Click)));
  subscribe(ControlOf<Button>(*form_, "cmdCancel").OnClick(handler(&fmAddHoliday::cmdCancel_Click)));
}

// Filling
// -------------------------------------------------------------------------------------------------------------

void fmAddHoliday::SetYear(std::int32_t year) {
  if (!platform::Date::IsValid(year, 1, 1)) return;
  for (DatePicker* picker : {&dtpFullDate_, &dtpHolidayPoint_})
    picker->SetDate(picker->Date().AddYears(year - picker->Date().Year()));
}

bool fmAddHoliday::Init(std::int32_t Mode, std::shared_ptr<platform::RecordSet> HolidayTypes,
                        std::int32_t FirstWeekday, std::shared_ptr<platform::RecordSet> HolidayRow,
                        std::shared_ptr<GridFields> ColumnMap) {
  const InSurroundings surroundings(platform_);
  mode_ = Mode;
  rule_ = std::move(HolidayRow);
  column_map_ = std::move(ColumnMap);
  if (!HolidayTypes || !LoadHolidayTypes(*HolidayTypes)) {
    RunHandler([] { ShowErrorMessage(error_index::kCannotLoadHolidayTypes); });
    return false;
  }
  BuildWeekdayList(FirstWeekday);
  UpdateDependentControls();
  return FillFields();
}

bool fmAddHoliday::LoadHolidayTypes(platform::RecordSet& types) {
  try {
    for (types.MoveFirst(); !types.Eof(); types.MoveNext()) {
      const std::int32_t type = platform::ToInt32(types["TID1"]);
      if (type != holiday_type::kWorkingDay)
        cmbHolidayType_.AddItem(platform::ToText(types["Description1"]), type);
    }
    return true;
  } catch (...) {
    return false;
  }
}

void fmAddHoliday::BuildWeekdayList(std::int32_t first_weekday) {
  for (std::int32_t i = 1; i <= kDaysInWeek; ++i) {
    IgnoringFailure([&] {
      cmbDayOfWeek_.AddItem(platform_.locale.WeekdayName((first_weekday - 1 + i - 1) % kDaysInWeek + 1), i);
    });
  }
}

bool fmAddHoliday::FillFields() {
  if (mode_ == kAddRule) form_->SetCaption("Add holiday");
  if (mode_ != kEditRule) return true;
  form_->SetCaption("Edit holiday");
  return FillFromRule();
}

// Only the name and the comment of an existing rule can be changed.
bool fmAddHoliday::FillFromRule() {
  IgnoringFailure([&] { txtName_.SetText(platform::ToText(RuleField("Name"))); });
  IgnoringFailure([&] { txtComment_.SetText(platform::ToText(RuleField("Comment"))); });
  std::int32_t type = 0;
  IgnoringFailure([&] { type = platform::ToInt32(RuleField("HolidayType")); });
  if (!ChooseHolidayType(type)) return false;
  platform::Value full_date;
  platform::Value weekday;
  IgnoringFailure([&] { full_date = RuleField("FullDate"); });
  IgnoringFailure([&] { weekday = RuleField("DayOfWeek"); });
  if (!ChooseWeekday(weekday)) return false;
  if (!full_date.IsEmpty()) {
    IgnoringFailure([&] { dtpFullDate_.SetDate(platform::ToDate(full_date)); });
    IgnoringFailure([&] { dtpHolidayPoint_.SetDate(platform::ToDate(full_date)); });
  }
  dtpFullDate_.SetEnabled(false);
  dtpHolidayPoint_.SetEnabled(false);
  return true;
}

bool fmAddHoliday::ChooseHolidayType(std::int32_t type) {
  const std::int32_t position = FindItemData(cmbHolidayType_, type);
  if (position < 0) {
    RunHandler([] { ShowErrorMessage(error_index::kCannotDefineHolidayType); });
    return false;
  }
  cmbHolidayType_.Choose(position);
  cmbHolidayType_.SetEnabled(false);
  return true;
}

bool fmAddHoliday::ChooseWeekday(const platform::Value& weekday) {
  if (!weekday.IsEmpty()) {
    std::int32_t position = -1;
    IgnoringFailure([&] { position = FindItemData(cmbDayOfWeek_, platform::ToInt32(weekday)); });
    if (position < 0) {
      RunHandler([] { ShowErrorMessage(error_index::kCannotDefineWeekday); });
      return false;
    }
    cmbDayOfWeek_.Choose(position);
  }
  cmbDayOfWeek_.SetEnabled(false);
  return true;
}

platform::Value fmAddHoliday::RuleField(const std::string& local_name) const {
  if (!rule_ || !column_map_) throw platform::InvalidUseOfNull();
  return (*rule_)[FieldNameOf(*column_map_, local_name)];
}

// Handlers
// ------------------------------------------------------------------------------------------------------------

void fmAddHoliday::UpdateDependentControls() {
  cmdOk_.SetEnabled(holiday_type_ != 0 && name_length_ != 0 &&
                    (holiday_type_ != holiday_type::kWeekday || weekday_ != 0));
  form_->ControlNamed("frmFields").SetEnabled(holiday_type_ != 0);
  const bool is_weekday_rule = holiday_type_ == holiday_type::kWeekday;
  form_->ControlNamed("lblDayOfWeek").SetVisible(is_weekday_rule);
  cmbDayOfWeek_.SetVisible(is_weekday_rule);
  form_->ControlNamed("lblFullDate").SetVisible(!is_weekday_rule);
  dtpFullDate_.SetVisible(holiday_type_ == holiday_type::kFullDate);
  // For any type beyond these no picker shows, although saving then reads this one, by intention.
  dtpHolidayPoint_.SetVisible(holiday_type_ == holiday_type::kHolidayPoint || holiday_type_ == 0);
}

void fmAddHoliday::cmbHolidayType_Choice() {
  holiday_type_ = ChosenItemData(cmbHolidayType_);
  UpdateDependentControls();
}

void fmAddHoliday::cmbDayOfWeek_Choice() {
  weekday_ = ChosenItemData(cmbDayOfWeek_);
  UpdateDependentControls();
}

void fmAddHoliday::txtName_Change() {
  name_length_ = static_cast<std::int32_t>(platform::Trim(txtName_.Text()).size());
  UpdateDependentControls();
}

// Closes with the result 0 also when saving failed; the operator has seen the message by then. A date that
// cannot be read is no rule yet: nothing is saved and the dialog stays.
void fmAddHoliday::cmdOk_Click() {
  if (!RequireDate()) return platform_.toolkit.Beep();
  TrimText(txtName_);
  TrimText(txtComment_);
  saving_.emplace(platform_.action_observer,
                  mode_ == kEditRule ? platform::ActionKind::kEditRule : platform::ActionKind::kAddRule,
                  [this](auto& about) { about.rules = {txtName_.Text()}; });
  Save();
  result_ = 0;
  CloseDialog(platform_.toolkit, *form_);
}

void fmAddHoliday::cmdCancel_Click() {
  result_ = 1;
  CloseDialog(platform_.toolkit, *form_);
}

void fmAddHoliday::ShowModal() { form_->ShowModal(); }

void fmAddHoliday::Unload() { form_->Unload(); }

// Saving
// --------------------------------------------------------------------------------------------------------------

DatePicker& fmAddHoliday::RulePicker() const {
  return holiday_type_ == holiday_type::kFullDate ? dtpFullDate_ : dtpHolidayPoint_;
}

bool fmAddHoliday::RequireDate() const {
  // The operator can mend only what is on show; a hidden picker gives the last day that it showed.
  if (holiday_type_ == holiday_type::kWeekday || !RulePicker().Visible()) return true;
  return RulePicker().RequireDate();
}

SourceValues fmAddHoliday::RuleParameters() const {
  SourceValues params;
  params.Add("Name1", txtName_.Text());
  params.Add("Comment", txtComment_.Text());
  params.Add("TID1", holiday_type_);
  if (holiday_type_ == holiday_type::kWeekday) {
    // The list position read as a day number; the weekday of the days 1 to 7 is the position again, by
    // intention.
    IgnoringFailure(
        [&] { params.Add("WD", static_cast<std::int16_t>(platform::Date::FromSerial(weekday_).Weekday())); });
  } else {
    const platform::Date date = RulePicker().Date();
    params.Add("D1", date);
    params.Add("MY", static_cast<std::int16_t>(date.Month()));
    params.Add("MD", static_cast<std::int16_t>(date.Day()));
  }
  if (mode_ == kEditRule) {
    IgnoringFailure([&] { params.Add("ID2", RuleField("ID_Holiday")); });
  }
  return params;
}

void fmAddHoliday::Save() {
  const SourceValues params = RuleParameters();
  std::shared_ptr<SourceValues> results;
  const std::int32_t answer = ExecProc("CldIUCelebrate", &params, results);
  if (platform_.action_observer != nullptr) TellWrite(platform_.action_observer, txtName_.Text(), answer);
  switch (answer) {
    case 0:
      break;
    case kNameInUse:
    case kNameOfRemovedRule:
      RunStep([] { ShowErrorMessage(error_index::kDuplicateHolidayName); });
      break;
    default:
      // Of a text that is too long the operator is told which, and how long it may be, before the message.
      if (const auto& too_long = Module().too_long_text) {
        SetPendingFailure(platform::failure_number::kInvalidArgument, Said(platform_, *too_long));
      }
      RunStep([] { ShowErrorMessage(error_index::kCannotAddHoliday); });
  }
}

}  // namespace ferrowind
