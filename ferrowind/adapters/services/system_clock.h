#pragma once

#include "ferrowind/export.h"
#include "ferrowind/platform/services/clock.h"

namespace ferrowind {

/// The clock of the machine, in the time zone that the environment names.
class FERROWIND_EXPORT SystemClock : public platform::Clock {
 public:
  [[nodiscard]] platform::Date Today() const override;
};

}  // namespace ferrowind
