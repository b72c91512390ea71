#include "ferrowind/data/run_handler.h"

#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/runtime_failure.h"

namespace ferrowind {

void RunHandler(const std::function<void()>& body) noexcept {
  try {
    RunStep(body);
  } catch (const platform::Interruption&) {
    // Nobody is left to tell, nor anything to do.
    TraceFailureBeingHandled();
  }
}

void RunHandler(const platform::Platform& platform, const std::function<void()>& body) noexcept {
  const InSurroundings surroundings(platform);
  RunHandler(body);
}

void RunStep(const std::function<void()>& step) {
  try {
    step();
  } catch (const platform::Interruption&) {
    throw;
  } catch (...) {
    try {
      const RuntimeFailureScope caught;
      ShowPendingFailures();
    } catch (const platform::Interruption&) {
      throw;
    } catch (...) {
      // The report itself failed: there is no one left to tell, and the host must live on.
    }
  }
}

}  // namespace ferrowind
