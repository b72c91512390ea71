#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// `ferrowindctl status`: tells what a database is and how much it holds.
struct StatusCommand {
  std::string url;
  OutputFormat format = OutputFormat::kTable;

  /// Two tables: one row about the database, and a row for each year that has calendars. A database that
  /// cannot be read is a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
