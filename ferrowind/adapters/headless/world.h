#pragma once

#include <memory>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/adapters/headless/fault_plan.h"
#include "ferrowind/adapters/headless/faulty_change_watch.h"
#include "ferrowind/adapters/headless/faulty_command_factory.h"
#include "ferrowind/adapters/headless/faulty_toolkit.h"
#include "ferrowind/adapters/headless/headless_clock.h"
#include "ferrowind/adapters/headless/headless_dictionary.h"
#include "ferrowind/adapters/headless/headless_locale.h"
#include "ferrowind/adapters/headless/headless_object_factory.h"
#include "ferrowind/adapters/headless/headless_shared_services.h"
#include "ferrowind/adapters/headless/headless_toolkit.h"
#include "ferrowind/adapters/headless/memory_engine.h"
#include "ferrowind/adapters/headless/script_errors.h"
#include "ferrowind/adapters/headless/scripted_command_factory.h"
#include "ferrowind/platform/database/engine_change_watch.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind::headless {

/// Everything that the component asks of its surroundings, made for one test; must outlive the component's
/// use.
///
/// The platform that it gives passes every call that may fail through `faults`. The object factory makes the
/// `dictionary` and the `services` of the world. Its component folder is "/component".
///
///     World world;
///     world.commands.Answer("CldAllInfo").Gives({"ID1", "Year1"}, {{978, 2026}});
///     const platform::Platform platform = world.Platform();
class World {
 public:
  /// Its platforms tell `action_observer` of the operator's actions, unless it is null.
  explicit World(platform::ActionObserver* action_observer = nullptr);

  /// With the scripted commands.
  [[nodiscard]] platform::Platform Platform();
  /// With commands that run on a new memory database, which becomes `database`. The dictionary answers with
  /// its connection string and its currencies; "CldAllInfo" and the other procedures change and read its
  /// tables.
  [[nodiscard]] platform::Platform PlatformOnMemory();
  /// Watches of the memory database, for a platform whose windows are to follow it.
  [[nodiscard]] platform::ChangeWatchFactory& ChangeWatches() { return faulty_change_watches_; }

  CallLog log;
  ScriptErrors script_errors;
  FaultPlan faults;
  /// Thursday, 15 January 2026 at first.
  HeadlessClock clock{platform::Date(2026, 1, 15)};
  HeadlessLocale locale;
  HeadlessToolkit toolkit{log, clock, script_errors};
  HeadlessObjectFactory objects{log};
  std::shared_ptr<HeadlessDictionary> dictionary = std::make_shared<HeadlessDictionary>(log);
  std::shared_ptr<HeadlessSharedServices> services = std::make_shared<HeadlessSharedServices>(log);
  ScriptedCommandFactory commands{log};
  /// Null until `PlatformOnMemory`.
  MemoryDatabase* database = nullptr;

 private:
  platform::ActionObserver* action_observer_;
  FaultyToolkit faulty_toolkit_{toolkit, faults};
  FaultyCommandFactory faulty_commands_{commands, faults};
  std::shared_ptr<MemoryEngine> memory_ = std::make_shared<MemoryEngine>();
  platform::EngineRegistry engines_;
  platform::EngineCommandFactory engine_commands_{engines_};
  FaultyCommandFactory faulty_engine_commands_{engine_commands_, faults};
  platform::EngineChangeWatchFactory change_watches_{engines_};
  FaultyChangeWatchFactory faulty_change_watches_{change_watches_, faults};
};

}  // namespace ferrowind::headless
