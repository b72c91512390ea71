#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/list_source.h"
#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// `ferrowindctl reconcile`: where a calendar and a published list do not agree.
struct ReconcileCommand {
  std::string url;
  /// In any letter case.
  std::string currency;
  ListSource source;
  OutputFormat output = OutputFormat::kTable;

  /// Prints the days that are closed on one side and open on the other to `out`, and to `errors` what limits
  /// that. `kNotDone` when there is any. What cannot be read, and a calendar that does not exist, is a
  /// `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::istream& in, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
