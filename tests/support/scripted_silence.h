#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/platform/database/change_watch.h"

namespace ferrowind::testing {

/// Watches of a server that is silent when a test says so, and never tells of changes. Outlives its watches.
class ScriptedSilence : public platform::ChangeWatchFactory {
 public:
  /// What watches tell; nothing while the server answers.
  std::optional<std::chrono::milliseconds> until_next_try;
  int tries_asked_for = 0;

  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& /*database*/) override {
    return nullptr;
  }
  [[nodiscard]] std::unique_ptr<platform::SilenceWatch> WatchSilence(
      const std::string& /*database*/) override {
    return std::make_unique<Silence>(*this);
  }

 private:
  class Silence : public platform::SilenceWatch {
   public:
    explicit Silence(ScriptedSilence& script) : script_(script) {}
    [[nodiscard]] std::optional<std::chrono::milliseconds> Look() override { return script_.until_next_try; }
    void TryNow() override { ++script_.tries_asked_for; }

   private:
    ScriptedSilence& script_;
  };
};

}  // namespace ferrowind::testing
