#pragma once

#include <string>

#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/views/planning/holidays_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Has the caption of the Holidays window tell the currency and the year, or the day, that it assigns rules
/// to.
class HolidaysCaption : public HolidaysAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts() { return {}; }
  HolidaysCaption(const PlanningContext& context, platform::HolidaysScene& scene)
      : locale_(context.platform.locale), scene_(scene) {}

  [[nodiscard]] std::string Caption(const std::string& given) override;

 private:
  const platform::Locale& locale_;
  platform::HolidaysScene& scene_;
};

}  // namespace ferrowind
