#include "ferrowind/views/common/update_lock.h"

#include <utility>

namespace ferrowind {

UpdateLock::UpdateLock(platform::Toolkit& toolkit, platform::Element& element)
    : toolkit_(toolkit), is_locked_(toolkit.LockUpdates(element)) {}

UpdateLock::~UpdateLock() { Unlock(); }

void UpdateLock::Unlock() {
  if (std::exchange(is_locked_, false)) toolkit_.UnlockUpdates();
}

}  // namespace ferrowind
