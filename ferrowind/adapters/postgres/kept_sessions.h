#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/session.h"

namespace ferrowind::postgres {

/// Under which name a session of `connection_string` is kept: it has all that its login depends on, the
/// variables of the environment that libpq heeds included.
[[nodiscard]] std::string LoginOf(const std::string& connection_string);

/// Sessions that no call uses now. Each is given to one call at a time, under the login that it was made
/// with, and closed when its life is over, by a thread of its own: a later call may never come. Used by any
/// thread.
///
/// A child of `fork` shares its parent's sessions and must not use them: there nothing is taken, kept or
/// closed.
class KeptSessions {
 public:
  /// A call may begin with a session for the time `life` from its login.
  explicit KeptSessions(std::chrono::milliseconds life);
  KeptSessions(const KeptSessions&) = delete;
  KeptSessions& operator=(const KeptSessions&) = delete;
  /// Closes them.
  ~KeptSessions();

  /// A session of `login` for the caller alone, reset and alive as far as is known without asking its server;
  /// null when there is none. Waits at most `time`, and only for a server that is still at the resetting.
  [[nodiscard]] std::unique_ptr<Session> Take(const std::string& login, std::chrono::milliseconds time);

  /// Whether later calls may have `session`, as far as is known of it now.
  [[nodiscard]] bool IsFit(const Session& session, SessionKeeping keeping) const;

  /// Takes a session back, or closes it when it is not fit to be kept.
  void Keep(const std::string& login, SessionKeeping keeping, std::unique_ptr<Session> session) noexcept;

  /// Closes those of `login`.
  void Close(const std::string& login);

 private:
  class Store;

  std::unique_ptr<Store> store_;
};

}  // namespace ferrowind::postgres
