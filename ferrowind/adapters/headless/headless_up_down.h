#pragma once

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/up_down.h"

namespace ferrowind::headless {

class HeadlessUpDown : public HeadlessControl<platform::UpDown> {
 public:
  using HeadlessControl::HeadlessControl;

  void SetRange(std::int32_t lowest, std::int32_t highest, std::int32_t step) override;
  [[nodiscard]] std::int32_t Value() const override { return value_; }
  void SetValue(std::int32_t value) override;
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler) override {
    return changed_.Subscribe(std::move(handler));
  }

  /// The operator presses an arrow. At the end of the range nothing happens.
  void StepUp();
  void StepDown();

 private:
  void StepTo(std::int64_t value);

  std::int32_t lowest_ = 0;
  std::int32_t highest_ = 100;
  std::int32_t step_ = 1;
  std::int32_t value_ = 0;
  platform::Signal<> changed_;
};

}  // namespace ferrowind::headless
