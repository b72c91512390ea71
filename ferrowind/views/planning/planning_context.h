#pragma once

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/planning/planning_windows.h"

namespace ferrowind {

/// What the additions of planning work with; all of it outlives them.
struct PlanningContext {
  const platform::Platform& platform;
  const almanac::DateTables& tables;
  PlanningWindows& windows;
};

}  // namespace ferrowind
