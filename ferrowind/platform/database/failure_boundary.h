#pragma once

#include <exception>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {

/// The result of `body`; whatever it throws leaves as a `Failure`, for nothing else may leave an adapter.
template <typename Body>
auto WithFailuresOnly(const Body& body) -> decltype(body()) {
  try {
    return body();
  } catch (const Failure&) {
    throw;
  } catch (const std::exception& error) {
    throw Failure(failure_number::kInvalidArgument, error.what());
  }
}

}  // namespace ferrowind::platform
