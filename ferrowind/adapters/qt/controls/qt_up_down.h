#pragma once

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/adapters/qt/controls/up_down_arrows.h"
#include "ferrowind/platform/toolkit/up_down.h"

namespace ferrowind::qt {

/// Its range is 0 to 100 in steps of 1 at first.
class QtUpDown : public QtControl<platform::UpDown> {
 public:
  explicit QtUpDown(UpDownArrows& arrows);

  void SetRange(std::int32_t lowest, std::int32_t highest, std::int32_t step) override;
  [[nodiscard]] std::int32_t Value() const override { return value_; }
  void SetValue(std::int32_t value) override;
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler) override;

 private:
  void StepTo(std::int64_t value);

  std::int32_t lowest_ = 0;
  std::int32_t highest_ = 100;
  std::int32_t step_ = 1;
  std::int32_t value_ = 0;
  platform::Signal<> changed_;
};

}  // namespace ferrowind::qt
