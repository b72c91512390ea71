#pragma once

#include <cstdint>
#include <optional>

#include "ferrowind/planning/history_store.h"

namespace ferrowind::planning {

/// What has become of the work of a call since.
struct LaterChanges {
  /// The newest later call that changed the same calendar, rule book, rule, currency or convention.
  std::optional<HistoryEntry> newest;
  /// The entry in force that has undone it.
  std::optional<HistoryEntry> undoer;
};

/// Of the call of `entry`. Fails as database_call.h says.
[[nodiscard]] LaterChanges LoadLaterChanges(const HistoryEntry& entry);

}  // namespace ferrowind::planning
