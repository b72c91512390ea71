#include "ferrowind/data/pending_failure.h"

#include <exception>

#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind {

void SetPendingFailure(std::int32_t number, const std::string& description) {
  if (number == 0) return;
  ModuleState& module = Module();
  FailureRecord& record = module.pending_failures[0];
  try {
    module.pending_failure_count = 1;
    record.number = number;
    record.description = description;
  } catch (const std::exception&) {
    module.pending_failure_count = 1;
    record.number = 666;
    record.number = platform::ToInt32("Unknown error");
  }
}

}  // namespace ferrowind
