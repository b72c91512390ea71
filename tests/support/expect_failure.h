#pragma once

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/failure_of.h"

namespace ferrowind::testing {

/// Expects that `action` throws the failure of that number and, where given, that description.
template <typename Action>
void ExpectFailure(const Action& action, std::int32_t number, const std::string& description = {}) {
  const platform::Failure failure = FailureOf(action);
  EXPECT_EQ(failure.Number(), number);
  if (!description.empty()) {
    EXPECT_EQ(failure.Description(), description);
  }
}

}  // namespace ferrowind::testing
