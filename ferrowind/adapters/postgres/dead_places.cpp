#include "ferrowind/adapters/postgres/dead_places.h"

#include <algorithm>

namespace ferrowind::postgres {
namespace {

/// Nobody tells when a server is back; then the first of the URI is the one that its writer prefers.
constexpr std::chrono::seconds kTimeToRemember{60};

}  // namespace

void DeadPlaces::Add(const std::string& place) {
  const std::lock_guard lock(mutex_);
  dead_[place] = Clock::now() + kTimeToRemember;
}

void DeadPlaces::Remove(const std::string& place) {
  const std::lock_guard lock(mutex_);
  dead_.erase(place);
}

void DeadPlaces::PutLast(std::vector<ServerPlace>& places) {
  const std::lock_guard lock(mutex_);
  std::erase_if(dead_, [now = Clock::now()](const auto& entry) { return entry.second <= now; });
  std::stable_partition(places.begin(), places.end(),
                        [this](const ServerPlace& place) { return !dead_.contains(place.name); });
}

}  // namespace ferrowind::postgres
