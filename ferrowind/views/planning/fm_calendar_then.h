#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"

namespace ferrowind {

/// The window that shows the days of a calendar as a change left them, and lets nobody change them.
class fmCalendarThen : public PlanningWindow, public std::enable_shared_from_this<fmCalendarThen> {
 public:
  /// Of the calendar of that entry of the history. What `context` refers to must outlive the window. Failure
  /// when the toolkit cannot make the form, or the database cannot be read or has no such entry.
  [[nodiscard]] static std::shared_ptr<fmCalendarThen> Create(const PlanningContext& context,
                                                              std::int32_t entry);
  /// Under which `PlanningWindows` keeps it.
  [[nodiscard]] static std::string NameFor(std::int32_t entry);

  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

 protected:
  fmCalendarThen(const PlanningContext& context, std::int32_t entry);

 private:
  void Connect();
  void Fill(std::int32_t entry);
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
