#pragma once

#include <thread>
#include <utility>

namespace ferrowind::testing {

/// Runs the body of a test on a thread of its own, where the component starts with a fresh module state.
template <typename Body>
void RunInFreshThread(Body&& body) {
  std::thread(std::forward<Body>(body)).join();
}

}  // namespace ferrowind::testing
