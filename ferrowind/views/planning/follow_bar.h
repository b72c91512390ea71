#pragma once

#include <memory>
#include <string>

#include "ferrowind/planning/shown_calendar.h"
#include "ferrowind/platform/database/change_watch.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Tells the operator of a Calendars window that somebody has changed the calendar on show, who and when, in
/// a bar with a button that reads it anew. Nothing else of the window changes by itself. What the window
/// shows already is no news, and so one's own changes are none.
///
/// It looks while the user interface is idle; a look that finds nothing new asks the database nothing. What
/// goes wrong is traced and tried again, and never told: the operator asked for nothing.
class FollowBar : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();

  FollowBar(const PlanningContext& context, platform::CalendarsScene& scene);

  void Started() override;
  void DaysShown() override;
  void Closing() override;

 private:
  void LookLater();
  void Look();
  /// Asks the database whether the calendar on show is still as it is on show.
  void Compare();
  void Tell(const planning::CalendarNews& news);
  [[nodiscard]] std::string SentenceOf(const planning::CalendarNews& news) const;

  const platform::Platform& platform_;
  platform::CalendarsScene& scene_;
  platform::Control& panel_;
  platform::Label& text_;
  /// Null when the database cannot tell of changes.
  std::unique_ptr<platform::ChangeWatch> watch_;
  /// The database has changed since the last comparison.
  bool is_due_ = false;
  /// What the bar is about.
  std::shared_ptr<platform::RecordSet> compared_;
  platform::Subscription next_look_;
  platform::Subscription refresh_clicked_;
};

}  // namespace ferrowind
