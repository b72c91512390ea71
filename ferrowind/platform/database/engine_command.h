#pragma once

#include <memory>

#include "ferrowind/platform/database/command.h"
#include "ferrowind/platform/database/engine_registry.h"

namespace ferrowind::platform {

/// Makes commands that run on the engine which their connection string names.
class EngineCommandFactory : public CommandFactory {
 public:
  /// `engines` is shared with the commands made here and must outlive them.
  explicit EngineCommandFactory(const EngineRegistry& engines) : engines_(engines) {}
  [[nodiscard]] std::unique_ptr<Command> CreateCommand() override;

 private:
  const EngineRegistry& engines_;
};

}  // namespace ferrowind::platform
