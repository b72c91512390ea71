#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/headless/fault_plan.h"
#include "ferrowind/platform/database/change_watch.h"

namespace ferrowind::headless {

/// Watches of which the making, and every look for changes, pass a plan first.
class FaultyChangeWatchFactory : public platform::ChangeWatchFactory {
 public:
  /// Both must outlive this and all that it makes.
  FaultyChangeWatchFactory(platform::ChangeWatchFactory& inner, FaultPlan& plan)
      : inner_(inner), plan_(plan) {}
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override;
  [[nodiscard]] std::unique_ptr<platform::SilenceWatch> WatchSilence(
      const std::string& connection_string) override;

 private:
  platform::ChangeWatchFactory& inner_;
  FaultPlan& plan_;
};

}  // namespace ferrowind::headless
