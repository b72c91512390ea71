#pragma once

#include "ferrowind/platform/values/date.h"

namespace ferrowind::platform {

class Clock {
 public:
  virtual ~Clock() = default;
  /// Today in the operator's time zone.
  [[nodiscard]] virtual Date Today() const = 0;
};

}  // namespace ferrowind::platform
