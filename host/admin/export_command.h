#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl export`: the closed days of calendars as a list for other programs.
struct ExportCommand {
  std::string url;
  /// Codes with commas between them, in any letter case.
  std::string currencies;
  /// As `ReadYears` reads it.
  std::string years;
  /// As list_format.h names it.
  std::string format;
  /// Weekends and working days by exception, too.
  bool has_all = false;
  /// Empty, or "-", for the standard output.
  std::string file;

  /// Prints the list to `out` or writes the file, which is replaced as a whole or not at all. A calendar that
  /// does not exist is a `platform::Failure`, and nothing is written then.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
