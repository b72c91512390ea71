#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl init`: creates a database.
struct InitCommand {
  std::string url;
  /// Without holiday rules and calendars.
  bool is_empty = false;

  /// Tells meanwhile how far it is on the terminal of standard error. What cannot be done is a
  /// `platform::Failure`. A signal to end does end the process, after `errors` has said that nothing was
  /// changed.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& errors) const;
};

}  // namespace ferrowind::host
