#pragma once

namespace ferrowind {

/// Runs one step whose failure, of whatever kind, is to be ignored: the step ends there and the next one
/// runs.
template <typename Step>
void IgnoringFailure(const Step& step) {
  try {
    step();
  } catch (...) {
    // Ignored by intention.
  }
}

}  // namespace ferrowind
