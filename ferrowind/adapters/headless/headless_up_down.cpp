#include "ferrowind/adapters/headless/headless_up_down.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

void HeadlessUpDown::SetRange(std::int32_t lowest, std::int32_t highest, std::int32_t step) {
  core_.Record("SetRange", {lowest, highest, step});
  if (lowest > highest || step < 1) throw platform::InvalidArgument();
  const auto keep = core_.Keep();
  lowest_ = lowest;
  highest_ = highest;
  step_ = step;
  StepTo(value_);
}

void HeadlessUpDown::SetValue(std::int32_t value) {
  core_.Record("SetValue", {value});
  if (value < lowest_ || value > highest_) throw platform::InvalidArgument();
  const auto keep = core_.Keep();
  value_ = value;
  changed_.Emit();
}

void HeadlessUpDown::StepUp() {
  const auto keep = core_.BeginAction("StepUp");
  StepTo(std::int64_t{value_} + step_);
}

void HeadlessUpDown::StepDown() {
  const auto keep = core_.BeginAction("StepDown");
  StepTo(std::int64_t{value_} - step_);
}

void HeadlessUpDown::StepTo(std::int64_t value) {
  const auto stepped =
      static_cast<std::int32_t>(std::clamp(value, std::int64_t{lowest_}, std::int64_t{highest_}));
  if (stepped == value_) return;
  value_ = stepped;
  changed_.Emit();
}

}  // namespace ferrowind::headless
