#pragma once

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// Holds window updates of an element locked, so that a reload repaints once. Inside another lock it does
/// nothing, since only one element can be locked at a time.
class UpdateLock {
 public:
  UpdateLock(platform::Toolkit& toolkit, platform::Element& element);
  ~UpdateLock();
  UpdateLock(const UpdateLock&) = delete;
  UpdateLock& operator=(const UpdateLock&) = delete;

  /// Unlocks before the end of the scope.
  void Unlock();

 private:
  platform::Toolkit& toolkit_;
  bool is_locked_;
};

}  // namespace ferrowind
