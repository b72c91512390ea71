#pragma once

#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {

/// The exception that is being handled, as a failure: itself when it is one, else one that holds its text. A
/// host's part of the surroundings may throw what is no `std::exception`: that is a failure as well.
/// Call it only inside a catch block.
[[nodiscard]] platform::Failure FailureBeingHandled();

/// Writes the exception that is being handled to the trace, for whoever looks for the cause of a failure that
/// the operator is told of only by its consequence. Call it only inside a catch block; throws nothing.
void TraceFailureBeingHandled() noexcept;

/// Makes the exception that is being handled the current runtime failure of the thread, for as long as the
/// handler of it runs: create one first thing in a catch block. An error report inside the block then shows
/// that failure first. A handler that runs and fails while another one's report waits for its answer gives
/// way to the other's failure again when it ends.
class RuntimeFailureScope {
 public:
  RuntimeFailureScope();
  ~RuntimeFailureScope();
  RuntimeFailureScope(const RuntimeFailureScope&) = delete;
  RuntimeFailureScope& operator=(const RuntimeFailureScope&) = delete;

 private:
  FailureRecord previous_;
};

}  // namespace ferrowind
