#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

/// Makes one call of a run of a scenario fail: the n-th of all that pass the plan.
///
///     for (int n = 1;; ++n) {
///       World world;
///       world.faults.FailAtCall(n);
///       ... the scenario, and what must hold whatever failed ...
///       if (!world.faults.HasFired()) break;
///     }
class FaultPlan {
 public:
  /// The number of the failures that a plan makes.
  static constexpr std::int32_t kFaultNumber = 7777;

  /// Starts counting anew; the `call`-th call from now on fails, counted from 1.
  void FailAtCall(int call);
  /// Nothing fails any more.
  void Disarm() { failing_call_ = 0; }
  /// Whether the planned failure happened.
  [[nodiscard]] bool HasFired() const { return has_fired_; }
  /// How many calls passed since `FailAtCall`, or since the plan was made.
  [[nodiscard]] int CallCount() const { return call_count_; }
  /// The call that failed, for example "dictionary.dic_ConnectionString"; "" while none has.
  [[nodiscard]] const std::string& FailedCall() const { return failed_call_; }

  /// Counts a call; throws `Failure` kFaultNumber, which names the call, when it is its turn.
  void Pass(const std::string& call);

 private:
  int failing_call_ = 0;
  int call_count_ = 0;
  bool has_fired_ = false;
  std::string failed_call_;
};

}  // namespace ferrowind::headless
