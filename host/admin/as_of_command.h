#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// `ferrowindctl as-of`: a calendar as it was at a moment.
struct AsOfCommand {
  std::string url;
  /// In any letter case.
  std::string currency;
  /// As plan_arguments.h reads it.
  std::string year;
  /// As history_arguments.h reads it.
  std::string moment;
  OutputFormat format = OutputFormat::kTable;

  /// Prints the days to `out`. A moment that cannot be read is an `ArgumentError`. No calendar then, a
  /// history that does not reach so far back and a database that cannot be read are a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
