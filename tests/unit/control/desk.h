#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/control/calendar.h"

namespace ferrowind::testing {

/// A control in a world of its own, with the currency EUR and no calendar. The control and its platform can
/// be destroyed before the world.
class Desk {
 public:
  Desk() {
    world.dictionary->SetCurrencies({{978, "EUR"}});
    world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {})
        .Gives({"TID1", "Description1"},
               {{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
    world.commands.Answer("CldIUMain")
        .Takes("@ID1", platform::ParameterType::kInt32)
        .Takes("@Year1", platform::ParameterType::kInt32);
  }

  void Destroy() {
    control.reset();
    platform.reset();
  }
  [[nodiscard]] headless::HeadlessForm& Window() const { return world.toolkit.FormNamed("fmCalendar"); }
  void Click(const std::string& tool) const {
    Window().Part<headless::HeadlessToolBar>("ssatb").ClickTool(tool);
  }
  [[nodiscard]] std::size_t CallsOf(const std::string& procedure) const {
    return world.commands.CallsOf(procedure).size();
  }

  headless::World world;
  std::unique_ptr<platform::Platform> platform = std::make_unique<platform::Platform>(world.Platform());
  std::unique_ptr<Calendar> control = std::make_unique<Calendar>(*platform);
};

}  // namespace ferrowind::testing
