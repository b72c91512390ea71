#include "host/automation/component_surroundings.h"

#include "ferrowind/adapters/windowless/windowless_platform.h"
#include "ferrowind/platform/database/engine_registry.h"

namespace ferrowind::host {
namespace {

class ComponentSurroundings : public automation::Surroundings {
 public:
  [[nodiscard]] const platform::Platform& Get() const override { return windowless_.Get(); }

 private:
  platform::EngineRegistry engines_;
  WindowlessPlatform windowless_{engines_, ""};
};

}  // namespace

std::unique_ptr<automation::Surroundings> MakeComponentSurroundings() {
  return std::make_unique<ComponentSurroundings>();
}

}  // namespace ferrowind::host
