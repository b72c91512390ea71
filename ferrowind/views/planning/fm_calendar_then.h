#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"

namespace ferrowind {

/// The window that shows the days of a calendar as a change left them or as they were at a moment, and lets
/// nobody change them.
class fmCalendarThen : public PlanningWindow, public std::enable_shared_from_this<fmCalendarThen> {
 public:
  /// Of the calendar of that entry of the history. What `context` refers to must outlive the window. Failure
  /// when the toolkit cannot make the form, or the database cannot be read or has no such entry.
  [[nodiscard]] static std::shared_ptr<fmCalendarThen> Create(const PlanningContext& context,
                                                              std::int32_t entry);
  /// The same of a calendar at a moment, UTC as YYYY-MM-DDTHH:MM:SS.sssZ.
  [[nodiscard]] static std::shared_ptr<fmCalendarThen> CreateAsOf(const PlanningContext& context,
                                                                  const planning::CalendarKey& calendar,
                                                                  const std::string& moment);
  /// Under which `PlanningWindows` keeps them.
  [[nodiscard]] static std::string NameFor(std::int32_t entry);
  [[nodiscard]] static std::string NameFor(const planning::CalendarKey& calendar, const std::string& moment);

  /// Why there are no days of a calendar to show, as a sentence; empty when it was there.
  [[nodiscard]] static std::string WhyEmpty(const platform::Platform& platform,
                                            planning::PastCalendar::State state);

  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

 protected:
  explicit fmCalendarThen(const PlanningContext& context);

 private:
  struct Creatable;

  void Connect();
  void ShowBehind(std::int32_t entry);
  void ShowAsOf(const planning::CalendarKey& calendar, const std::string& moment);
  void ShowDays(const planning::PastCalendar& past);
  void Form_Load();
  void Form_QueryUnload();
  void CloseByButton();

  const platform::Platform& platform_;
  std::shared_ptr<platform::Form> form_;
  StoredPlacement placement_{"Window Calendar Then"};
  bool has_closed_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
