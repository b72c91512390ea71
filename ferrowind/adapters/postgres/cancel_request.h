#pragma once

#include <chrono>
#include <future>

#include <libpq-fe.h>

namespace ferrowind::postgres {

/// Asks a server to stop what a connection runs there. Nobody has to wait for it: the request goes over a
/// connection of its own, which a server that does not answer keeps waiting for as long as it likes.
class CancelRequest {
 public:
  /// Sends it. Without memory or a thread for it, nothing is sent.
  explicit CancelRequest(PGconn* connection);

  /// Whether, at `until` at the latest, the server has passed the request on, so that it can meet no later
  /// statement any more.
  [[nodiscard]] bool IsOver(std::chrono::steady_clock::time_point until) const;

 private:
  std::future<void> passed_on_;
};

}  // namespace ferrowind::postgres
