#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/call_log.h"

namespace ferrowind::testing {

/// Expects that the log holds these calls in this order, whatever else stands between them.
inline void ExpectInOrder(const headless::CallLog& log, const std::vector<std::string>& calls) {
  std::size_t from = 0;
  for (const auto& call : calls) {
    const auto position = log.PositionOf(call, from);
    if (!position) {
      ADD_FAILURE() << "The log does not hold " << call
                    << (log.Contains(call) ? " behind the call before it" : "");
      return;
    }
    from = *position + 1;
  }
}

}  // namespace ferrowind::testing
