#include "ferrowind/views/planning/refreshed_calendars.h"

#include "ferrowind/data/run_handler.h"

namespace ferrowind {

RefreshedCalendars::RefreshedCalendars(const PlanningContext& context, platform::CalendarsScene& scene)
    : changed_(
          context.windows.OnChanged([&platform = context.platform, &scene](const PlanningWindows::Changed&) {
            RunHandler(platform, [&] { scene.Refresh(); });
          })) {}

void RefreshedCalendars::Closing() { changed_.Reset(); }

}  // namespace ferrowind
