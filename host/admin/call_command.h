#pragma once

#include <string>
#include <vector>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// `ferrowindctl call`: one procedure call through the component's own gateway.
struct CallCommand {
  std::string url;
  std::string procedure;
  /// NAME=VALUE, as procedure_arguments.h reads them.
  std::vector<std::string> arguments;
  OutputFormat format = OutputFormat::kTable;

  /// Prints the return value and the record sets to `out` and a failure's number and text to `errors`. Throws
  /// `ArgumentError` before anything is called.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
