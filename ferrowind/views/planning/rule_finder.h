#pragma once

#include <string>

#include "ferrowind/views/planning/find_bar.h"
#include "ferrowind/views/planning/holidays_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Finds rules in a Holidays window by what stands in them and by their type, in a bar above the list.
class RuleFinder : public HolidaysAddition {
 public:
  static constexpr const char* kFindTool = "ID_Find";

  [[nodiscard]] static platform::WindowParts Parts();

  RuleFinder(const PlanningContext& context, platform::HolidaysScene& scene);

  bool RunTool(const std::string& id) override;
  void Closing() override;

 private:
  [[nodiscard]] FindBar::Subject Subject();

  const platform::Platform& platform_;
  FindBar bar_;
};

}  // namespace ferrowind
