#pragma once

namespace ferrowind::host {

/// The exit statuses of ferrowindctl, which scripts rely on.
enum class ExitStatus : int {
  kDone = 0,
  /// The command could not be done, the database has faults, or the command line is wrong.
  kNotDone = 1,
  /// The procedure ran and returned another value than 0.
  kReturnedNonZero = 2,
  /// The call failed: the database reported an error.
  kCallFailed = 3,
};

}  // namespace ferrowind::host
