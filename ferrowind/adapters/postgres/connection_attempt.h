#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/connection_handle.h"
#include "ferrowind/adapters/postgres/connection_refusal.h"
#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/dead_places.h"
#include "ferrowind/adapters/postgres/server_places.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

/// The connecting to one of the servers that a connection string names, step by step, for as long as its user
/// wants to wait at a time.
///
/// Each server that is silent has its share of the time, so that one that is gone leaves some to the others.
/// A server that has no connection free is asked once more. What a step may wait for beyond its time is the
/// finding of a host's address by its name, which libpq and the system do in one go.
class ConnectionAttempt {
 public:
  using Clock = std::chrono::steady_clock;

  /// `time` is what the servers share; the last of them has no end of its own. `dead` is shared with other
  /// attempts and must outlive this one.
  ConnectionAttempt(const ConnectionUri& uri, DeadPlaces& dead, std::chrono::milliseconds time);

  /// Goes on, at most until `until`, and at least as far as it gets without waiting. True once the connection
  /// stands, false when there is no answer yet. When no server lets anybody in, a failure that says why each
  /// did not.
  [[nodiscard]] bool GoOn(Clock::time_point until);
  /// The connection that stands.
  [[nodiscard]] ConnectionHandle Take();

  /// Nothing of the server has come so far, not even that there is one.
  [[nodiscard]] bool IsUnheard() const;
  /// A server, perhaps not the last, was given up because it did not answer.
  [[nodiscard]] bool WasSilent() const { return was_silent_; }
  /// "The database NAME at HOST:PORT" of the server that is being tried, without the latter of several.
  [[nodiscard]] std::string DatabaseName() const;

 private:
  void Begin();
  void MoveOn();
  void Refused();
  [[nodiscard]] platform::Failure Failed() const;

  DeadPlaces& dead_;
  std::vector<ServerPlace> places_;
  std::string database_;
  /// Of each server, if the URI says so; otherwise no end.
  Clock::duration time_for_each_;
  Clock::time_point shared_end_;
  std::size_t place_ = 0;
  ConnectionHandle connection_;
  /// What libpq waits for.
  PostgresPollingStatusType waits_for_ = PGRES_POLLING_WRITING;
  Clock::time_point begins_at_ = Clock::time_point::min();
  Clock::time_point place_end_ = Clock::time_point::max();
  bool has_asked_again_ = false;
  bool was_silent_ = false;
  bool refuses_options_ = false;
  /// Why servers did not let anybody in.
  std::string reasons_;
};

}  // namespace ferrowind::postgres
