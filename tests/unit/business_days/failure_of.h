#pragma once

#include <string>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {

/// What the question fails with, or "answered".
template <typename Question>
std::string FailureOf(Question question) {
  try {
    static_cast<void>(question());
    return "answered";
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
}

}  // namespace ferrowind::business_days
