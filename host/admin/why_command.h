#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl why`: what a day is, what it should be, and why.
struct WhyCommand {
  std::string url;
  /// In any letter case.
  std::string currency;
  /// As plan_arguments.h reads it.
  std::string date;

  /// Prints to `out`, and to `errors` which dates of the year the plan lacks. A date that cannot be read is
  /// an `ArgumentError`; what cannot be planned or read is a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
