#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/confirmation.h"
#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl undo`: puts back what a call changed.
struct UndoCommand {
  std::string url;
  /// The entry of the call in the history, as history_arguments.h reads it.
  std::string entry;

  /// Does not ask.
  bool is_confirmed = false;

  /// Asks, unless `is_confirmed` or there is nobody to ask, and tells on `out` what was undone, and how that
  /// is taken back; when it is not wanted, `errors` says that nothing was changed, and the status is
  /// `kNotDone`. What cannot be undone is a `platform::Failure` that says why, and nothing is changed then;
  /// what is no number is an `ArgumentError`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                               std::ostream& out, std::ostream& errors) const;
};

}  // namespace ferrowind::host
