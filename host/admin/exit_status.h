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

  // Of "date", where 1 says that a day is closed and so cannot say anything else.
  kClosed = 1,
  /// The question could not be answered, or the command line is wrong.
  kNotAnswered = 2,
  /// The answer depends on a day that nobody has prepared.
  kNotPrepared = 3,
};

}  // namespace ferrowind::host
