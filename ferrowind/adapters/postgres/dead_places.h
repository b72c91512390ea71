#pragma once

#include <chrono>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/server_places.h"

namespace ferrowind::postgres {

/// Which servers did not let anybody connect a while ago, so that they are tried behind the others. Used by
/// any thread.
class DeadPlaces {
 public:
  using Clock = std::chrono::steady_clock;

  void Add(const std::string& place);
  void Remove(const std::string& place);
  /// The places that are known dead behind the others, otherwise in their order.
  void PutLast(std::vector<ServerPlace>& places);

 private:
  std::mutex mutex_;
  /// Until when, by the place's name.
  std::map<std::string, Clock::time_point> dead_;
};

}  // namespace ferrowind::postgres
