#include "ferrowind/adapters/postgres/silence_probe.h"

#include <algorithm>

namespace ferrowind::postgres {

using std::chrono::milliseconds;

std::optional<milliseconds> SilenceProbe::Look() {
  const auto next_try = servers_->GoOnTrying(connection_string_, uri_);
  if (!next_try) return std::nullopt;
  const auto left = std::chrono::ceil<milliseconds>(*next_try - SilentServers::Clock::now());
  return std::max(milliseconds(1), left);
}

}  // namespace ferrowind::postgres
