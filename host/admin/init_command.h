#pragma once

#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl init`: creates a database.
struct InitCommand {
  std::string url;
  /// Without holiday rules and calendars.
  bool is_empty = false;

  /// What cannot be done is a `platform::Failure`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines) const;
};

}  // namespace ferrowind::host
