#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/delivery/first_database.h"

namespace ferrowind::host {

/// `ferrowindctl init`: creates a database.
struct InitCommand {
  std::string url;
  FirstContent content;

  /// Tells on `out` what was made, and meanwhile how far it is on the terminal of standard error. What cannot
  /// be done is a `platform::Failure`. A signal to end does end the process, after `errors` has said that
  /// nothing was changed.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
