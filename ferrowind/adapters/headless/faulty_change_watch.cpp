#include "ferrowind/adapters/headless/faulty_change_watch.h"

#include <utility>

namespace ferrowind::headless {
namespace {

class FaultyChangeWatch : public platform::ChangeWatch {
 public:
  FaultyChangeWatch(std::unique_ptr<platform::ChangeWatch> inner, FaultPlan& plan)
      : inner_(std::move(inner)), plan_(plan) {}

  [[nodiscard]] bool Look() override {
    plan_.Pass("change_watch.Look");
    return inner_->Look();
  }
  [[nodiscard]] std::chrono::milliseconds Pause() const override { return inner_->Pause(); }

 private:
  std::unique_ptr<platform::ChangeWatch> inner_;
  FaultPlan& plan_;
};

}  // namespace

std::unique_ptr<platform::ChangeWatch> FaultyChangeWatchFactory::Watch(const std::string& connection_string) {
  plan_.Pass("change_watches.Watch");
  auto inner = inner_.Watch(connection_string);
  if (inner == nullptr) return nullptr;
  return std::make_unique<FaultyChangeWatch>(std::move(inner), plan_);
}

std::unique_ptr<platform::SilenceWatch> FaultyChangeWatchFactory::WatchSilence(
    const std::string& connection_string) {
  plan_.Pass("change_watches.WatchSilence");
  return inner_.WatchSilence(connection_string);
}

}  // namespace ferrowind::headless
