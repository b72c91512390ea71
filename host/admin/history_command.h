#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// `ferrowindctl history`: what was changed in a database, when and by whom.
struct HistoryCommand {
  std::string url;
  /// As history_arguments.h reads them.
  std::optional<std::string> since;
  std::optional<std::string> calendar;
  OutputFormat format = OutputFormat::kTable;

  /// Prints the entries to `out`, the oldest first. Arguments that cannot be read are an `ArgumentError`; a
  /// database that cannot be read, and a currency that it does not know, are a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
