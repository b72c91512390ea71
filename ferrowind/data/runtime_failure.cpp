#include "ferrowind/data/runtime_failure.h"

#include <new>
#include <utility>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind {
namespace {

constexpr std::int32_t kOutOfMemory = 7;
constexpr std::int32_t kInternalError = 51;

}  // namespace

platform::Failure FailureBeingHandled() {
  try {
    throw;
  } catch (const platform::Failure& failure) {
    return failure;
  } catch (const std::bad_alloc&) {
    return {kOutOfMemory, "Out of memory"};
  } catch (const std::exception& exception) {
    return {kInternalError, std::string("Internal error: ") + exception.what()};
  } catch (...) {
    return {kInternalError, "Internal error: an exception that tells nothing of itself"};
  }
}

void TraceFailureBeingHandled() noexcept {
  IgnoringFailure([] {
    const platform::Failure failure = FailureBeingHandled();
    SharedServicesObject().TraceMessage("Failure " + platform::ToText(failure.Number()) + ": " +
                                        failure.Description());
  });
}

RuntimeFailureScope::RuntimeFailureScope() {
  const platform::Failure failure = FailureBeingHandled();
  previous_ = std::exchange(Module().runtime_failure, {failure.Number(), failure.Description()});
}

RuntimeFailureScope::~RuntimeFailureScope() { Module().runtime_failure = std::move(previous_); }

}  // namespace ferrowind
