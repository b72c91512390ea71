#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl check`: lists the faults of a database.
struct CheckCommand {
  std::string url;
  /// What `ferrowindctl seal` printed.
  std::optional<std::string> seal;

  /// One line per fault to `out`, or that there is none, with a line for each warning about its calendars
  /// (calendar_warnings.h) in front; these do not change the status. A database that cannot be read, and what
  /// is no seal, are a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
