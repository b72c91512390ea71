#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ferrowind/planning/day_story.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// The pane below the days that tells why the current one is what it is, and what the same day is in the
/// years around. The operator shows and hides it; it comes back as it was left.
///
/// It reads only while it is on show, and only once the operator rests on a day. What cannot be read it says
/// itself: nobody who goes through the days is stopped by a message.
class WhyPane : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();
  WhyPane(const PlanningContext& context, platform::CalendarsScene& scene);

  void Started() override;
  bool RunTool(const std::string& id) override;
  void DaysShown() override;
  void CurrentDayChanged() override;
  void Closing() override;

 private:
  void SetVisible(bool is_visible);
  void TellSoon();
  void Tell();
  void TellOf(const platform::CalendarOnShow& calendar, const platform::Date& day);
  [[nodiscard]] std::string LastChangeOf(const platform::Date& day) const;
  void TellNothing(const std::string& text);

  PlanningContext context_;
  platform::CalendarsScene& scene_;
  platform::Control& pane_;
  platform::TextView& text_;
  platform::Table& years_;
  bool is_visible_ = false;
  /// Of the days on show; nothing until somebody rests on one of them.
  std::optional<planning::CalendarStory> story_;
  platform::Subscription rest_;
};

}  // namespace ferrowind
