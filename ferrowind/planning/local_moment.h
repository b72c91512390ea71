#pragma once

#include <string>

namespace ferrowind::planning {

/// A moment of the history, which is UTC, by this computer's clock: "2026-11-22 10:05:31". What is no such
/// moment stays as it is.
[[nodiscard]] std::string LocalMoment(const std::string& moment);

}  // namespace ferrowind::planning
