#pragma once

#include <chrono>
#include <optional>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// Looks after a database whose server may fall silent, for a window that tells its operator so. Used by one
/// thread.
class FERROWIND_EXPORT SilenceWatch {
 public:
  virtual ~SilenceWatch() = default;

  /// Nothing while the server answers, as far as its calls have shown: also when it refuses somebody. Else
  /// how long until it is tried again, more than nothing.
  ///
  /// A look makes the try that is due and goes on with what was begun, so a silent server that is looked at
  /// often is noticed as soon as it answers. It waits for nobody but the finding of a host's address, and
  /// never fails.
  [[nodiscard]] virtual std::optional<std::chrono::milliseconds> Look() = 0;

  /// The next look tries anew, whatever is under way.
  virtual void TryNow() = 0;
};

}  // namespace ferrowind::platform
