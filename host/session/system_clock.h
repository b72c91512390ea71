#pragma once

#include "ferrowind/platform/services/clock.h"

namespace ferrowind::host {

/// The clock of the machine, in the time zone that the environment names.
class SystemClock : public platform::Clock {
 public:
  [[nodiscard]] platform::Date Today() const override;
};

}  // namespace ferrowind::host
