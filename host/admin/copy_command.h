#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl copy`: takes everything that a database holds to another one, of the same engine or not.
struct CopyCommand {
  std::string from;
  std::string to;

  /// Tells what was copied to `out`, and meanwhile how far it is on the terminal of standard error. What
  /// cannot be done is a `platform::Failure`, and the target is as it was then, but for a
  /// `content::DoubtfulOutcome`. A signal to end does end the process, after `errors` has said that nothing
  /// was changed.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
