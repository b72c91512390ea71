#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/silence_watch.h"

namespace ferrowind::platform {

/// Learns whether somebody changes a database, for a program that looks now and then while it is idle.
///
/// A look waits for nobody: not for the database, not for another program, not for a server that is gone. In
/// between nothing is locked. Used by one thread.
class FERROWIND_EXPORT ChangeWatch {
 public:
  virtual ~ChangeWatch() = default;

  /// Whether the database may have been changed since the last look, by whomever, this program included. Many
  /// changes are told of once; a call that changed nothing never is.
  ///
  /// The first look that reaches the database answers true, and so does the first one that reaches it again
  /// after it was out of reach, for nobody knows what happened meanwhile. Until then the answer is false, or
  /// a `Failure` that says why the last try came to nothing, once for every try. A failure ends nothing:
  /// later looks try again.
  [[nodiscard]] virtual bool Look() = 0;

  /// How long to wait from now before the next look; more than nothing.
  [[nodiscard]] virtual std::chrono::milliseconds Pause() const = 0;
};

/// Makes watches of databases, which the connection strings name and which may be out of reach.
class FERROWIND_EXPORT ChangeWatchFactory {
 public:
  virtual ~ChangeWatchFactory() = default;
  /// Null when that kind of database cannot tell of changes; failure when no database can be meant.
  [[nodiscard]] virtual std::unique_ptr<ChangeWatch> Watch(const std::string& connection_string) = 0;
  /// Null when that kind of database is never silent; failure when no database can be meant.
  [[nodiscard]] virtual std::unique_ptr<SilenceWatch> WatchSilence(const std::string& connection_string) = 0;
};

}  // namespace ferrowind::platform
