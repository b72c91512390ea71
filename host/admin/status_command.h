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

  /// Three tables: one row about the database, a row for each year that has calendars, and the warnings about
  /// calendars (calendar_warnings.h), which the format for people has as sentences at the end. On a server
  /// one more tells who has how many of its connections. A database that cannot be read is a
  /// `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
