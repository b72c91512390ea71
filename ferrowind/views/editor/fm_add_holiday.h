#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {

/// The modes of the holiday editor.
inline constexpr std::int32_t kAddRule = 0;
inline constexpr std::int32_t kEditRule = 1;

/// The dialog in which the operator adds a holiday rule or edits one. It saves the rule itself before it
/// closes.
///
/// A fresh one for each use. It unloads itself; `Result` stays readable afterwards.
class fmAddHoliday {
 public:
  /// `platform` must outlive the dialog.
  explicit fmAddHoliday(const platform::Platform& platform);
  fmAddHoliday(const fmAddHoliday&) = delete;
  fmAddHoliday& operator=(const fmAddHoliday&) = delete;

  /// The year of the calendar that the rule is written for: the date of a new rule lies in it. To be called
  /// before `Init`, if at all; without it, or with a year outside 1 to 9999, the year is the current one.
  void SetYear(std::int32_t year);
  /// Makes the dialog ready to be shown; called once. `HolidayTypes` has the fields `TID1` and
  /// `Description1`; `FirstWeekday` is 1 Sunday to 7 Saturday. For `kEditRule`, `HolidayRow` stands on the
  /// rule, and nothing else moves it while the dialog is open, and `ColumnMap` names its fields; else both
  /// are null. False when the dialog cannot be filled; that has been reported.
  bool Init(std::int32_t Mode, std::shared_ptr<platform::RecordSet> HolidayTypes, std::int32_t FirstWeekday,
            std::shared_ptr<platform::RecordSet> HolidayRow, std::shared_ptr<GridFields> ColumnMap);
  /// Returns once the dialog is closed.
  void ShowModal();
  void Unload();
  /// 1 after "Cancel", else 0: also when the dialog was closed by its frame, and when saving failed.
  [[nodiscard]] std::int32_t Result() const { return result_; }

 private:
  bool LoadHolidayTypes(platform::RecordSet& types);
  void BuildWeekdayList(std::int32_t first_weekday);
  bool FillFields();
  bool FillFromRule();
  bool ChooseHolidayType(std::int32_t type);
  bool ChooseWeekday(const platform::Value& weekday);
  [[nodiscard]] platform::Value RuleField(const std::string& local_name) const;
  void UpdateDependentControls();
  [[nodiscard]] platform::DatePicker& RulePicker() const;
  [[nodiscard]] bool RequireDate() const;
  [[nodiscard]] SourceValues RuleParameters() const;
  void Save();

  void cmbHolidayType_Choice();
  void cmbDayOfWeek_Choice();
  void txtName_Change();
  void cmdOk_Click();
  void cmdCancel_Click();

  const platform::Platform& platform_;
  std::shared_ptr<platform::Form> form_;
  platform::TextBox& txtName_;
  platform::TextBox& txtComment_;
  platform::DropDownList& cmbHolidayType_;
  platform::DropDownList& cmbDayOfWeek_;
  platform::DatePicker& dtpFullDate_;
  platform::DatePicker& dtpHolidayPoint_;
  platform::Button& cmdOk_;
  std::int32_t mode_ = kAddRule;
  std::shared_ptr<platform::RecordSet> rule_;
  std::shared_ptr<GridFields> column_map_;
  /// 0 while none is chosen.
  std::int32_t holiday_type_ = 0;
  /// The position of the chosen weekday in the list, 1 to 7; 0 while none is chosen.
  std::int32_t weekday_ = 0;
  std::int32_t name_length_ = 0;
  std::int32_t result_ = 0;
  std::vector<platform::Subscription> subscriptions_;
  /// Lasts until the dialog is dropped, when its caller has shown the rules again.
  std::optional<ActionScope> saving_;
};

}  // namespace ferrowind
