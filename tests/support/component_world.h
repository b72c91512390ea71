#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/data/module_state.h"

namespace ferrowind::testing {

/// The messages and the reported failures of `log`, in the order in which the operator saw them.
[[nodiscard]] inline std::vector<std::string> SeenByOperator(const headless::CallLog& log) {
  std::vector<std::string> seen;
  for (const auto& call : log.Calls()) {
    if (call.starts_with("services.ShowMessage(") || call.starts_with("services.ReportError(")) {
      seen.push_back(call);
    }
  }
  return seen;
}

/// The component started in a headless world, with its outside objects made. Make one on a fresh thread.
class ComponentWorld {
 public:
  explicit ComponentWorld(platform::ActionObserver* action_observer = nullptr) : world(action_observer) {
    AttachPlatform(platform);
    EnsureDictionaryObject();
    static_cast<void>(SharedServicesObject());
    world.log.Clear();
  }

  /// The messages and the reported failures, as the log writes them, in the order in which the operator saw
  /// them.
  [[nodiscard]] std::vector<std::string> SeenByOperator() const { return testing::SeenByOperator(world.log); }

  headless::World world;
  platform::Platform platform = world.Platform();
};

/// A numbered message as `SeenByOperator` writes it.
[[nodiscard]] inline std::string NumberedMessage(const std::string& message) {
  return "services.ShowMessage(\"Tessaro Calendar. " + message + R"(", 3, 1, 1, none, "", True, True))";
}

}  // namespace ferrowind::testing
