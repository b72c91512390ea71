#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/confirmation.h"
#include "host/admin/exit_status.h"
#include "host/admin/list_source.h"

namespace ferrowind::host {

/// `ferrowindctl import`: makes calendars as a published list says.
struct ImportCommand {
  std::string url;
  /// In any letter case.
  std::string currency;
  ListSource source;
  /// Closed days get the names of the list.
  bool takes_names = false;
  bool keeps_exceptions = false;
  /// Does not ask.
  bool is_confirmed = false;

  /// Reads the whole list, then shows and makes what it says, as `ApplyCommand` does with a plan: each year
  /// in one call of its own. A list that cannot be read is a `platform::Failure`, and nothing is changed.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                               std::istream& in, std::ostream& out, std::ostream& errors) const;
};

}  // namespace ferrowind::host
