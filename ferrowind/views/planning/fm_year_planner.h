#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/planning/year_overview.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"
#include "ferrowind/views/planning/selected_days.h"
#include "ferrowind/views/planning/silence_bar.h"

namespace ferrowind {

/// The window that shows a year of one currency, or of several together, at a glance.
class fmYearPlanner : public PlanningWindow, public std::enable_shared_from_this<fmYearPlanner> {
 public:
  /// Reads the calendars of the year; `currencies` are numbers of currencies, at least one. What `context`
  /// refers to must outlive the window. Failure when the toolkit cannot make the form or the calendars cannot
  /// be read.
  [[nodiscard]] static std::shared_ptr<fmYearPlanner> Create(const PlanningContext& context,
                                                             const std::vector<std::int32_t>& currencies,
                                                             int year);
  /// Under which `PlanningWindows` keeps it.
  [[nodiscard]] static std::string NameFor(const std::vector<std::int32_t>& currencies, int year);

  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

 protected:
  explicit fmYearPlanner(const PlanningContext& context);

 private:
  void Connect();
  /// Shows those calendars as they are now.
  void Show(const std::vector<planning::Currency>& currencies, int year);
  void ShowAsTyped();
  void ShowYear(int years_later);
  void ReadAnew();
  void ReadAnewAfter(const PlanningWindows::Changed& changed);
  void RunTool(const std::string& id);
  void ShowDayMenu();
  void ExceptDays();
  void ExceptDaysWithReason();
  void CloseDays();
  void Undo();
  void OpenDayHistory();
  /// The calendar of the current day; null in the row of all of them.
  [[nodiscard]] const planning::YearOverview::Calendar* CurrentCalendar() const;
  void Tell(const DaysOutcome& outcome);
  void RefreshUndo();
  void Save(platform::PageFile kind);
  void RefreshSelection();
  void ShowToolDescription(const std::string& id);
  void Form_Load();
  void Form_QueryUnload();

  PlanningContext context_;
  const platform::Platform& platform_;
  PlanningWindows& windows_;
  std::shared_ptr<platform::Form> form_;
  platform::YearView& view_;
  platform::ToolBar& tools_;
  platform::TextBox& currencies_box_;
  platform::TextBox& year_box_;
  platform::Label& summary_;
  platform::StatusBar& bar_;
  /// Nothing until the first calendars are read.
  std::optional<planning::YearOverview> overview_;
  SilenceBar silence_bar_;
  StoredPlacement placement_{"Window Year Planner"};
  bool has_closed_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
