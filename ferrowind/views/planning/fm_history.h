#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/entry_changes.h"
#include "ferrowind/planning/history_list.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/history_choice.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"
#include "ferrowind/views/planning/silence_bar.h"

namespace ferrowind {

/// The window that tells who changed what and when, with what each change replaced, and puts changes back.
class fmHistory : public PlanningWindow, public std::enable_shared_from_this<fmHistory> {
 public:
  /// What `context` refers to must outlive the window. Failure when the toolkit cannot make the form, or the
  /// database cannot be read.
  [[nodiscard]] static std::shared_ptr<fmHistory> Create(const PlanningContext& context);
  /// Under which `PlanningWindows` keeps it.
  [[nodiscard]] static std::string Name() { return "fmHistory"; }

  /// Shows the changes that `filter` asks for, whose user counts for nothing; those of everybody or one's own
  /// as the operator has chosen.
  void ShowChangesOf(const planning::HistoryFilter& filter);

  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

 protected:
  explicit fmHistory(const PlanningContext& context);

 private:
  void Connect();
  void RunTool(const std::string& id);
  /// Reads what the two lists ask for. On failure they ask for what is on show again.
  void ShowChosen();
  void ShowOlder();
  void Reload();
  void ReloadAfter(const PlanningWindows::Changed& changed);
  void ShowLines();
  void ShowCurrent();
  /// `told` is empty for no entry.
  void ShowChanges(const std::string& told, const planning::EntryChanges& changes);
  void ShowStep(const planning::HistoryList::Line* line);
  void Undo();
  void Redo();
  void Do(planning::UndoStep::Kind kind);
  void OpenCalendarThen();
  /// Asks for the moment.
  void OpenCalendarAsOf();
  [[nodiscard]] const planning::HistoryList::Line* CurrentLine() const;
  /// The calendar whose changes are on show, else that of the current change; nothing where that is of none.
  [[nodiscard]] std::optional<planning::CalendarKey> CalendarMeant() const;
  void Form_Load();
  void Form_QueryUnload();
  void CloseByButton();

  const platform::Platform& platform_;
  PlanningWindows& windows_;
  planning::HistoryList list_;
  std::shared_ptr<platform::Form> form_;
  platform::ToolBar& tools_;
  HistoryChoice choice_;
  platform::Table& entries_;
  platform::Button& older_;
  platform::Label& told_;
  platform::Table& changes_;
  platform::Label& remark_;
  platform::Button& undo_;
  platform::Button& redo_;
  platform::Button& then_;
  platform::Button& as_of_;
  SilenceBar silence_bar_;
  StoredPlacement placement_{"Window History"};
  bool has_closed_ = false;
  /// While this window fills the list of entries.
  bool is_busy_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
