#pragma once

#include <exception>

namespace ferrowind {

/// Runs one step whose failure is to be ignored: the step ends there and the next one runs.
template <typename Step>
void IgnoringFailure(const Step& step) {
  try {
    step();
  } catch (const std::exception&) {
    // Ignored by intention.
  }
}

}  // namespace ferrowind
