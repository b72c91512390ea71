#pragma once

#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// Plays an animated image over and over; shows nothing while it does not play.
class FERROWIND_EXPORT Animation : public Control {
 public:
  /// A file that is missing or no animated image is a failure that names it.
  virtual void Open(const std::string& path) = 0;
  /// Failure when no animation is open.
  virtual void Play() = 0;
  /// Shows nothing any more; does nothing when it does not play.
  virtual void Stop() = 0;
};

}  // namespace ferrowind::platform
