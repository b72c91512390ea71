#pragma once

#include <cstdint>

#include "ferrowind/data/module_state.h"

namespace ferrowind {

/// Has the thread's pending failures at its end as they were at its beginning: for calls of the gateway that
/// the operator did not ask for, and whose failures are nobody's.
class KeptPendingFailures {
 public:
  KeptPendingFailures() : count_(Module().pending_failure_count), failures_(Module().pending_failures) {}
  ~KeptPendingFailures() {
    Module().pending_failure_count = count_;
    Module().pending_failures.swap(failures_);
  }
  KeptPendingFailures(const KeptPendingFailures&) = delete;
  KeptPendingFailures& operator=(const KeptPendingFailures&) = delete;

 private:
  std::int32_t count_;
  decltype(ModuleState::pending_failures) failures_;
};

}  // namespace ferrowind
