#pragma once

#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/change_watch.h"
#include "ferrowind/platform/database/engine_registry.h"

namespace ferrowind::platform {

/// Makes the watches of the engine that the connection string names.
class FERROWIND_EXPORT EngineChangeWatchFactory : public ChangeWatchFactory {
 public:
  /// `engines` must outlive this object and the watches made here.
  explicit EngineChangeWatchFactory(const EngineRegistry& engines) : engines_(engines) {}
  [[nodiscard]] std::unique_ptr<ChangeWatch> Watch(const std::string& connection_string) override {
    return engines_.EngineFor(connection_string).Watch(connection_string);
  }
  [[nodiscard]] std::unique_ptr<SilenceWatch> WatchSilence(const std::string& connection_string) override {
    return engines_.EngineFor(connection_string).WatchSilence(connection_string);
  }

 private:
  const EngineRegistry& engines_;
};

}  // namespace ferrowind::platform
