#include "ferrowind/adapters/headless/fault_plan.h"

namespace ferrowind::headless {

void FaultPlan::FailAtCall(int call) {
  *this = FaultPlan();
  failing_call_ = call;
}

void FaultPlan::Pass(const std::string& call) {
  ++call_count_;
  if (call_count_ != failing_call_) return;
  has_fired_ = true;
  failed_call_ = call;
  throw platform::Failure(kFaultNumber, "Planned fault in " + call);
}

}  // namespace ferrowind::headless
