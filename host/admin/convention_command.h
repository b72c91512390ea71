#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"
#include "host/admin/outcome_writer.h"

/// `ferrowindctl conventions`: how the market counts the days to spot, as the program brings it and as the
/// database amends it. What is refused, or cannot be done, is a `platform::Failure` that says why. On a
/// server only an administrator may change conventions.
namespace ferrowind::host {

struct ConventionListCommand {
  std::string url;
  OutputFormat format = OutputFormat::kTable;

  /// Each convention in force as a line, whether it comes from the program or the database, and the line of
  /// the program that one of the database stands in place of.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

struct ConventionSetCommand {
  std::string url;
  /// As `business_days::ReadMarketConventions` takes them. Nothing is set unless all of them can be read and
  /// name currencies that the database knows.
  std::vector<std::string> lines;

  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

/// Takes back what `ConventionSetCommand` said.
struct ConventionRemoveCommand {
  std::string url;
  /// Currency pairs, and codes of currencies.
  std::vector<std::string> subjects;

  /// A subject of which the database says nothing is refused; those before it are done then.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

}  // namespace ferrowind::host
