#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::contract {

/// Expects that `call` fails with that number and a description in which `mention` stands.
inline void ExpectFailure(std::int32_t number, const std::string& mention,
                          const std::function<void()>& call) {
  try {
    call();
    ADD_FAILURE() << "Nothing failed, where the failure " << number << " was expected";
  } catch (const platform::Failure& failure) {
    EXPECT_EQ(failure.Number(), number) << failure.Description();
    EXPECT_NE(failure.Description().find(mention), std::string::npos) << failure.Description();
  }
}

}  // namespace ferrowind::contract
