#pragma once

#include <memory>

#include "ferrowind/adapters/headless/fault_plan.h"
#include "ferrowind/platform/database/command.h"

namespace ferrowind::headless {

/// Commands of which every operation, and every operation of the cursors that they hand back, passes a plan
/// first.
class FaultyCommandFactory : public platform::CommandFactory {
 public:
  /// Both must outlive this and all that it makes.
  FaultyCommandFactory(platform::CommandFactory& inner, FaultPlan& plan) : inner_(inner), plan_(plan) {}
  [[nodiscard]] std::unique_ptr<platform::Command> CreateCommand() override;
  [[nodiscard]] std::shared_ptr<platform::SharedConnections> ShareConnections() override;

 private:
  platform::CommandFactory& inner_;
  FaultPlan& plan_;
};

}  // namespace ferrowind::headless
