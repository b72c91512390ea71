#include "ferrowind/adapters/headless/world.h"

#include "ferrowind/adapters/headless/faulty_dictionary.h"
#include "ferrowind/adapters/headless/faulty_shared_services.h"

namespace ferrowind::headless {

World::World(platform::ActionObserver* action_observer) : action_observer_(action_observer) {
  engines_.Register("memory", memory_);
  objects.Register(platform::kDictionaryIdentifier, [this] {
    faults.Pass("objects.CreateObject");
    return std::make_shared<FaultyDictionary>(dictionary, faults);
  });
  objects.Register(platform::kSharedServicesIdentifier, [this] {
    faults.Pass("objects.CreateObject");
    return std::make_shared<FaultySharedServices>(services, faults);
  });
}

platform::Platform World::Platform() {
  return {objects, faulty_commands_, faulty_toolkit_, locale, clock, "/component", action_observer_};
}

platform::Platform World::PlatformOnMemory() {
  database = &memory_->CreateDatabase("world");
  dictionary->SetConnectionString("memory:world");
  dictionary->SetTable("Ccy", database->Dictionary("Ccy"));
  return {objects, faulty_engine_commands_, faulty_toolkit_, locale, clock, "/component", action_observer_};
}

}  // namespace ferrowind::headless
