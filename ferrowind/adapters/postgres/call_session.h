#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <type_traits>

#include "ferrowind/adapters/postgres/call_time.h"
#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/kept_sessions.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres/session.h"
#include "ferrowind/adapters/postgres/silent_servers.h"

namespace ferrowind::postgres {

/// The session that a call has, or several calls that follow each other: one that was kept, or a new one.
/// Keeps them from waiting for ever. When destroyed it gives the session back to those that are kept.
class CallSession {
 public:
  /// `servers` learns when the server of `connection_string` does not answer.
  CallSession(std::shared_ptr<SilentServers> servers, std::shared_ptr<KeptSessions> kept,
              std::string connection_string);
  CallSession(const CallSession&) = delete;
  CallSession& operator=(const CallSession&) = delete;
  ~CallSession();

  [[nodiscard]] Session& Get() { return *session_; }
  [[nodiscard]] ServerConnection& Connection() { return session_->connection; }

  /// Runs `work`, a step of a call that waits for nothing but the connection, in what is left of the call's
  /// time.
  template <typename Work>
  std::invoke_result_t<const Work&> Within(ServerConnection::LateWork late, const Work& work) {
    EndReset();
    const CallTime::Step step(time_);
    Connection().LimitWaits(time_.Left(), late);
    try {
      auto result = work();
      Connection().OutliveCancel();
      return result;
    } catch (...) {
      session_->has_failed = true;
      if (Connection().IsSilent()) servers_->FellSilent(connection_string_);
      throw;
    }
  }

  /// As `Within`, for work that changes nothing: on a session that was kept and has not answered anything
  /// since, it is the look whether it is still of use. If not, the work is done on a new one.
  template <typename Work>
  std::invoke_result_t<const Work&> Read(const Work& work) {
    EndReset();
    if (!session_->was_kept || has_answered_) return Within(ServerConnection::LateWork::kLeft, work);
    try {
      const CallTime::Step step(time_);
      Connection().LimitWaits(time_.Left() / kPartForTrying, ServerConnection::LateWork::kLeft);
      auto result = work();
      has_answered_ = true;
      if (IsOfWantedKind()) return result;
    } catch (const platform::Failure& failure) {
      session_->has_failed = true;
      if (Connection().IsAlive() && !IsOfState(failure, "57P01")) throw;
    }
    ConnectAnew();
    return Within(ServerConnection::LateWork::kLeft, work);
  }

  /// Leaves the session, which is closed, for a new one.
  void ConnectAnew();

  /// The server is done with a call: where the session is one to be kept, it begins to forget what the call
  /// has left, while the caller still reads what it has answered.
  void BeginReset();

  /// The next call over the session begins.
  void Renew() { time_.Renew(); }

 private:
  /// Of a call's time, one is for finding out that a kept session is of no more use, the others for a new
  /// one.
  static constexpr int kPartForTrying = 2;

  /// Waits for the server where it was asked to forget. A session on which it does not is left for a new one:
  /// nothing of the step that follows was sent.
  void EndReset();
  [[nodiscard]] bool IsOfWantedKind() const;

  std::shared_ptr<SilentServers> servers_;
  std::shared_ptr<KeptSessions> kept_;
  std::string connection_string_;
  ConnectionUri uri_;
  std::string login_;
  CallTime time_;
  std::unique_ptr<Session> session_;
  bool has_answered_ = false;
};

}  // namespace ferrowind::postgres
