#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/group_by_box_tool.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/holidays/holiday_list.h"
#include "ferrowind/views/holidays/holiday_rule.h"
#include "ferrowind/views/holidays/holidays_extension.h"
#include "ferrowind/views/holidays/holidays_window.h"

namespace ferrowind {

/// The Holidays window: the list of holiday rules, and the commands that assign, remove, restore, add and
/// edit them.
///
/// A fresh one for each use. Whoever holds it must keep it until `ShowModal` has returned.
class fmEnterHolidays : public HolidaysWindow {
 public:
  /// Runs work that may take long, and shows that it goes on.
  using BusyRunner = std::function<void(const std::function<void()>& work)>;

  /// `platform` must outlive the window. `run_busy` runs the assignment of rules; the work throws nothing but
  /// an `Interruption`, which ends it.
  /// `currency` is the name that the host's observer and the additions are told for the calendar's currency.
  explicit fmEnterHolidays(
      const platform::Platform& platform, BusyRunner run_busy = [](const auto& work) { work(); },
      std::string currency = {});
  fmEnterHolidays(const fmEnterHolidays&) = delete;
  fmEnterHolidays& operator=(const fmEnterHolidays&) = delete;

  bool Init(std::shared_ptr<GridFields> holiday_headers, std::int32_t mode, std::int32_t year,
            std::int32_t currency_id, std::int32_t day_of_year) override;
  void ShowModal() override;
  [[nodiscard]] std::int32_t Result() const override { return result_; }
  void Unload() override;
  /// Never refuses.
  bool ForceClosing() override;

 private:
  fmEnterHolidays(const platform::Platform& platform, const platform::WindowParts& additional,
                  BusyRunner run_busy, std::string currency);

  using Command = void (fmEnterHolidays::*)();
  /// What becomes of the rules after one that the database refuses to mark.
  enum class AtRefusal { kStop, kGoOn };

  void OpenAdditions();
  void SetMode(std::int32_t mode);
  void Add();
  void Edit();
  void Remove();
  void Restore();
  void ToggleFilter();
  void Assign();
  void StoreAssignmentOf(const HolidayRule& rule);
  [[nodiscard]] bool IsSureToRemove() const;
  void EditRule(std::int32_t editor_mode, std::shared_ptr<platform::RecordSet> rule,
                std::shared_ptr<GridFields> column_map);
  void MarkSelectedRules(platform::ActionKind action, std::int16_t mark, std::int32_t error_index,
                         AtRefusal at_refusal);
  void TellOfSelectedRules(platform::OperatorAction& action) const;
  void Reload();
  void RefreshButtons();

  void Form_Load();
  void Form_QueryUnload();
  void ssatb_ToolClick(const std::string& id);

  const platform::Platform& platform_;
  BusyRunner run_busy_;
  std::string currency_;
  std::shared_ptr<platform::Form> form_;
  platform::Grid& gexHolidays_;
  platform::ToolBar& ssatb_;
  GroupByBoxTool group_by_box_tool_;
  /// The control array of the six buttons.
  std::vector<platform::Button*> cmdAction_;
  HolidayList list_;
  HolidaysExtension extension_;
  AssignmentTarget target_;
  std::int32_t result_ = 0;
  bool has_closed_ = false;
  StoredPlacement placement_{"Window Holidays"};
  std::vector<platform::Subscription> subscriptions_;
  /// Lasts until the window is dropped, when its caller has shown what was assigned.
  std::optional<ActionScope> assignment_;
};

}  // namespace ferrowind
