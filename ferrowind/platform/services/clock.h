#pragma once

#include "ferrowind/export.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::platform {

/// Tells which day it is.
class FERROWIND_EXPORT Clock {
 public:
  virtual ~Clock() = default;
  /// Today in the operator's time zone.
  [[nodiscard]] virtual Date Today() const = 0;
};

}  // namespace ferrowind::platform
