#include "ferrowind/adapters/qt/controls/qt_up_down.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

QtUpDown::QtUpDown(UpDownArrows& arrows) : QtControl(arrows) {
  QObject::connect(&arrows, &UpDownArrows::Stepped, Context(),
                   [this](int direction) { StepTo(std::int64_t{value_} + std::int64_t{direction} * step_); });
}

void QtUpDown::SetRange(std::int32_t lowest, std::int32_t highest, std::int32_t step) {
  if (lowest > highest || step < 1) throw platform::InvalidArgument();
  lowest_ = lowest;
  highest_ = highest;
  step_ = step;
  StepTo(value_);
}

void QtUpDown::SetValue(std::int32_t value) {
  if (value < lowest_ || value > highest_) throw platform::InvalidArgument();
  value_ = value;
  Raise(changed_);
}

platform::Subscription QtUpDown::OnChange(std::function<void()> handler) {
  return changed_.Subscribe(std::move(handler));
}

void QtUpDown::StepTo(std::int64_t value) {
  const auto stepped =
      static_cast<std::int32_t>(std::clamp(value, std::int64_t{lowest_}, std::int64_t{highest_}));
  if (stepped == value_) return;
  value_ = stepped;
  Raise(changed_);
}

}  // namespace ferrowind::qt
