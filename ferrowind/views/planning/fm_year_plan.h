#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/planning/list_import.h"
#include "ferrowind/planning/plan_batch.h"
#include "ferrowind/planning/plan_run.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/plan_table.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"
#include "ferrowind/views/planning/silence_bar.h"

namespace ferrowind {

/// The window that shows where calendars differ from what they should be, and makes them so.
class fmYearPlan : public PlanningWindow, public std::enable_shared_from_this<fmYearPlan> {
 public:
  /// Of `calendars`, none twice, at least one, called as `PlanBatch` says. What `context` refers to must
  /// outlive the window. Failure when the toolkit cannot make the form; what cannot be planned is told in the
  /// window.
  [[nodiscard]] static std::shared_ptr<fmYearPlan> Create(const PlanningContext& context,
                                                          const std::vector<planning::CalendarKey>& calendars,
                                                          const planning::CurrencyList& known);
  /// The same of what a list says of one calendar. What the list leaves open is told in the window.
  [[nodiscard]] static std::shared_ptr<fmYearPlan> CreateOfList(const PlanningContext& context,
                                                                const planning::ListImport& import);
  /// Under which `PlanningWindows` keeps it.
  [[nodiscard]] static std::string NameFor(const std::vector<planning::CalendarKey>& calendars);
  [[nodiscard]] static std::string NameFor(const planning::ListImport& import);

  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

 protected:
  /// `list` is what it is called; empty for plans by rule books.
  fmYearPlan(const PlanningContext& context, planning::PlanBatch batch, std::string list);

 private:
  struct Creatable;

  void Connect();
  void AddTools();
  void FillCalendarList();
  void RunTool(const std::string& id);
  void ShowCaption();
  void ShowLines();
  void Apply();
  void Undo();
  void PlanAnew();
  /// What could not be planned while the server was silent is planned now.
  void PlanWhatIsMissing();
  /// Applies or undoes all, or until the operator stops it.
  void Do(planning::PlanRun::Kind kind);
  void ShowProgress(planning::PlanRun& run, planning::PlanRun::Kind kind);
  void PlanAnewAfter(const PlanningWindows::Changed& changed);
  /// Tells what became of the calls, until the next of them or until the plans are made anew. `stopped` says
  /// that the operator has stopped them; empty when not.
  void Tell(const std::vector<planning::PlanOutcome>& outcomes, const std::string& stopped);
  void RefreshSummary();
  void ShowCurrentLine();
  /// Shows and tells the others what `outcomes` have changed.
  void ShowDone(const std::vector<planning::PlanOutcome>& outcomes, const std::string& stopped);
  /// Tells the other windows what `outcomes` have changed.
  void TellOthers(const std::vector<planning::PlanOutcome>& outcomes);
  void TellRemarks(const std::vector<std::string>& remarks);
  void Form_Load();
  void Form_QueryUnload();
  void CloseByButton();

  const platform::Platform& platform_;
  PlanningWindows& windows_;
  planning::PlanBatch batch_;
  std::string list_;
  std::shared_ptr<platform::Form> form_;
  platform::ToolBar& tools_;
  /// Null when there is only one calendar.
  platform::DropDownList* filter_ = nullptr;
  platform::Label& summary_;
  platform::Table& lines_;
  /// What the columns may have no room for.
  platform::Label& current_line_;
  platform::Table& outcome_;
  platform::Button& undo_;
  platform::Button& apply_;
  PlanTable table_;
  SilenceBar silence_bar_;
  StoredPlacement placement_{"Window Year Plan"};
  bool has_closed_ = false;
  /// While it tells the other windows of its own changes.
  bool is_telling_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
