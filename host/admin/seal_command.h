#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl seal`: prints what proves later that the history up to now was not changed.
struct SealCommand {
  std::string url;

  /// The seal to `out`, on a line of its own, and what it is of to `errors`, so that a script can keep the
  /// seal alone. A database that cannot be read is a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
