#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl upgrade`: brings a database to this program's version.
struct UpgradeCommand {
  std::string url;

  /// Tells on `out` what was done, or that there was nothing to do. What cannot be done is a
  /// `platform::Failure`, and the database is then as it was. A signal before it is done ends the program as
  /// `RunInterruptibly` does.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
