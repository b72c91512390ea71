#include "host/automation/component_surroundings.h"

#include "ferrowind/adapters/automation/outside_objects.h"
#include "ferrowind/adapters/windowless/windowless_platform.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/services/shared_services.h"

namespace ferrowind::host {
namespace {

class ComponentSurroundings : public automation::Surroundings {
 public:
  [[nodiscard]] const platform::Platform& Get() const override { return platform_; }

 private:
  platform::EngineRegistry engines_;
  WindowlessPlatform windowless_{engines_, ""};
  automation::OutsideObjects objects_{[this] {
    auto& objects = windowless_.Get().objects;
    return std::dynamic_pointer_cast<platform::SharedServices>(
        objects.CreateObject(platform::kSharedServicesIdentifier));
  }};
  platform::Platform platform_{objects_,
                               windowless_.Get().commands,
                               windowless_.Get().toolkit,
                               windowless_.Get().locale,
                               windowless_.Get().clock,
                               {}};
};

}  // namespace

std::unique_ptr<automation::Surroundings> MakeComponentSurroundings() {
  return std::make_unique<ComponentSurroundings>();
}

}  // namespace ferrowind::host
