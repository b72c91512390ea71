#pragma once

#include "ferrowind/export.h"
#include "ferrowind/platform/services/clock.h"

namespace ferrowind::qt {

/// The clock of the machine, in its time zone.
class FERROWIND_EXPORT QtClock : public platform::Clock {
 public:
  [[nodiscard]] platform::Date Today() const override;
};

}  // namespace ferrowind::qt
