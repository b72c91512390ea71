#pragma once

#include <cstdint>
#include <functional>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A pair of arrows that step a number of their own up and down; shows no text.
class FERROWIND_EXPORT UpDown : public Control {
 public:
  /// Sets the lowest and highest value and the step; the value is moved into the range.
  virtual void SetRange(std::int32_t lowest, std::int32_t highest, std::int32_t step) = 0;
  /// The number that the arrows have stepped to, within the range.
  [[nodiscard]] virtual std::int32_t Value() const = 0;
  /// A value outside the range is the failure Invalid argument.
  virtual void SetValue(std::int32_t value) = 0;
  /// The value was set or stepped; also raised when the program sets the value that it already has.
  [[nodiscard]] virtual Subscription OnChange(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
