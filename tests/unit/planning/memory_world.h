#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/value.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::planning {

/// A database in memory whose procedures do what they do; on the thread that makes it.
class MemoryWorld {
 public:
  using Arguments = std::initializer_list<std::pair<const char*, platform::Value>>;

  explicit MemoryWorld(platform::ActionObserver* action_observer = nullptr) : world(action_observer) {
    AttachPlatform(platform);
    EnsureDictionaryObject();
    static_cast<void>(SharedServicesObject());
  }

  /// Its return value.
  std::int32_t Call(const std::string& procedure, Arguments arguments) {
    SourceValues parameters;
    for (const auto& [name, value] : arguments) parameters.Add(name, value);
    std::shared_ptr<SourceValues> results;
    return ExecProc(procedure, &parameters, results);
  }

  void ActAs(const std::string& user) { world.database->SetUser(user); }

  /// The numbers of these rules are 2 and 3.
  void AddSundayAndGoodFriday() {
    Call("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}});
    Call("CldIUCelebrate",
         {{"Name1", "Good Friday"}, {"TID1", 4}, {"D1", platform::Date(2028, 4, 14)}, {"MY", 4}, {"MD", 14}});
  }
  /// Good Friday goes to 14 April 2028, the day 105.
  void AssignGoodFriday() {
    Call("CldIUMain", {{"ID1", 978},
                       {"Year1", 2028},
                       {"TID1", 4},
                       {"ID2", 3},
                       {"Day1", 105},
                       {"ODate", platform::Date(2028, 4, 14)}});
  }

  /// The messages and the reported failures, as the log writes them.
  [[nodiscard]] std::vector<std::string> SeenByOperator() const { return testing::SeenByOperator(world.log); }

  headless::World world;
  const platform::Platform platform = world.PlatformOnMemory();
};

}  // namespace ferrowind::planning
