#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// `ferrowindctl review`: what is wrong or odd about the calendars of a database.
struct ReviewCommand {
  std::string url;
  /// How many years after the running one must have calendars.
  std::optional<int> horizon;
  OutputFormat format = OutputFormat::kTable;

  /// Prints the findings to `out`, worst first. `kNotDone` from warnings on. A database that cannot be read
  /// is a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
