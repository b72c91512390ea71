#pragma once

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::testing {

/// The failure that `action` ends with; without one, the test fails.
template <typename Action>
platform::Failure FailureOf(const Action& action) {
  try {
    action();
  } catch (const platform::Failure& failure) {
    return failure;
  }
  ADD_FAILURE() << "no failure was thrown";
  return {0, std::string()};
}

}  // namespace ferrowind::testing
