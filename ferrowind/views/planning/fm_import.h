#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/planning/list_import.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"

namespace ferrowind {

/// The window that asks which list a calendar is to be made as, and tells what is wrong in the list, line by
/// line. It makes way for the plan of the list (`PlanningWindows::OpenListPlan`) once that can be shown.
class fmImport : public PlanningWindow, public std::enable_shared_from_this<fmImport> {
 public:
  /// What `context` refers to must outlive the window. Failure when the toolkit cannot make the form.
  [[nodiscard]] static std::shared_ptr<fmImport> Create(const PlanningContext& context);
  /// Under which `PlanningWindows` keeps it.
  [[nodiscard]] static std::string Name() { return "import"; }

  /// Proposes the calendar of that currency, by its code, and year; neither changes what is there when it is
  /// not given.
  void Propose(const std::string& currency, std::optional<int> year);
  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

 protected:
  explicit fmImport(const PlanningContext& context);

 private:
  void Connect();
  void ChooseFile();
  void Preview();
  /// What is typed and chosen; nothing when that was refused.
  [[nodiscard]] std::optional<planning::ListFile> Typed();
  void Refuse(const std::string& why, platform::TextBox& field);
  void TellFaults(const std::vector<exchange::ListFault>& faults, std::size_t count);
  void ShowCurrentFault();
  void Form_Load();
  void Form_QueryUnload();
  void CloseByButton();

  const PlanningContext context_;
  std::shared_ptr<platform::Form> form_;
  platform::TextBox& file_;
  platform::TextBox& currency_;
  platform::TextBox& year_;
  platform::DropDownList& names_;
  platform::Label& outcome_;
  platform::Table& faults_;
  /// What the column may have no room for.
  platform::Label& current_fault_;
  /// By the keys of the rows.
  std::vector<exchange::ListFault> told_;
  StoredPlacement placement_{"Window Import"};
  bool has_closed_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
