#include "ferrowind/data/run_handler.h"

#include <exception>

#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/runtime_failure.h"

namespace ferrowind {

void RunHandler(const std::function<void()>& body) noexcept {
  try {
    body();
  } catch (const std::exception&) {
    try {
      const RuntimeFailureScope caught;
      ShowPendingFailures();
    } catch (const std::exception&) {
      // The report itself failed: there is no one left to tell, and the host must live on.
    }
  }
}

}  // namespace ferrowind
