#pragma once

#include <chrono>
#include <optional>
#include <utility>

#include "ferrowind/adapters/postgres/connection_handle.h"
#include "ferrowind/adapters/postgres/remembered_signatures.h"
#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// A connection for calls from its login to its end, which one call after the other may use.
struct Session {
  using Clock = std::chrono::steady_clock;

  explicit Session(ConnectionHandle handle) : connection(std::move(handle)) {}

  ServerConnection connection;
  Clock::time_point logged_in = Clock::now();
  RememberedSignatures signatures;
  /// An earlier call has used it.
  bool was_kept = false;
  /// A call on it has failed, so that nobody knows in which state it is.
  bool has_failed = false;
  /// The server was asked to forget what calls have left on it, and its answer is still to come.
  bool is_being_reset = false;
  /// Whether the server itself is at the other end, and no pool; nothing as long as nobody has asked.
  std::optional<bool> is_direct;
};

}  // namespace ferrowind::postgres
