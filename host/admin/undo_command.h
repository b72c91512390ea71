#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl undo`: puts back what a call changed.
struct UndoCommand {
  std::string url;
  /// The entry of the call in the history.
  std::int32_t entry = 0;

  /// Tells on `out` what was undone, and how that is taken back. What cannot be undone is a
  /// `platform::Failure` that says why, and nothing is changed then.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
