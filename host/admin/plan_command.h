#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// `ferrowindctl plan`: where calendars differ from what they should be.
struct PlanCommand {
  std::string url;
  /// Of which calendars, as calendar_choice.h chooses them.
  std::string currency;
  /// As plan_arguments.h reads them.
  std::string years;
  /// Every closed day, not only those that differ.
  bool shows_all = false;
  /// Exceptions count as planned, as `ApplyCommand` leaves them then.
  bool keeps_exceptions = false;
  OutputFormat format = OutputFormat::kTable;

  /// Prints the days to `out`, and to `errors` what limits the plan: a calendar that does not exist, dates
  /// that are not known yet, what the database would refuse. `kNotDone` when anything differs. Several
  /// calendars stand behind each other, for programs in one list with a field `currency` in front. Years that
  /// cannot be read are an `ArgumentError`; what cannot be planned or read is a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
