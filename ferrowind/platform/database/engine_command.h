#pragma once

#include <memory>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/command.h"
#include "ferrowind/platform/database/engine_registry.h"

namespace ferrowind::platform {

/// Makes commands that run on the engine which their connection string names.
class FERROWIND_EXPORT EngineCommandFactory : public CommandFactory {
 public:
  /// `engines` is shared with the commands made here and must outlive them.
  explicit EngineCommandFactory(const EngineRegistry& engines) : engines_(engines) {}
  [[nodiscard]] std::unique_ptr<Command> CreateCommand() override;
  [[nodiscard]] std::shared_ptr<SharedConnections> ShareConnections() override;

 private:
  class Shared;

  const EngineRegistry& engines_;
  /// Gone while nobody shares.
  std::weak_ptr<Shared> shared_;
};

}  // namespace ferrowind::platform
