#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/confirmation.h"
#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// `ferrowindctl apply`: makes calendars as planned.
struct ApplyCommand {
  std::string url;
  /// In any letter case; what `planning::MeansAllCurrencies` for all that have a book.
  std::string currency;
  /// As plan_arguments.h reads them.
  std::string years;
  bool keeps_exceptions = false;
  /// Does not ask.
  bool is_confirmed = false;

  /// Prints to `out` what will change and what has changed. Nothing is changed unless `confirm` or
  /// `is_confirmed` says so, and none of the calendars when the database would refuse one of them: the reason
  /// is on `errors` then, and the status is `kNotDone`. Each calendar changes in one call of its own and
  /// is told at once, so a failure (a `platform::Failure`) leaves those before it changed, and so does a
  /// signal that asks the program to end: the running call ends, and the status is `kNotDone`. A calendar
  /// that somebody else has changed meanwhile stays as it is, the others go on, and the status is `kNotDone`.
  /// Years that cannot be read are an `ArgumentError`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                               std::ostream& out, std::ostream& errors) const;
};

}  // namespace ferrowind::host
