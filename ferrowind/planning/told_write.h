#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ferrowind/platform/services/action_observer.h"

namespace ferrowind::planning {

/// What an action is about, as the host is told of it.
struct ToldSubject {
  /// The currency's code.
  std::string currency;
  /// 0 for none.
  int year = 0;
};

/// Makes a call that writes, which gives its return value, as an action of its own, and tells the host of the
/// attached surroundings of it and how it ends. What the call throws reaches the caller.
void WriteTold(platform::ActionKind kind, const ToldSubject& subject,
               const std::function<std::int32_t()>& call);

}  // namespace ferrowind::planning
