#include "ferrowind/adapters/postgres/call_session.h"

#include <utility>

#include "ferrowind/adapters/postgres/session_state.h"

namespace ferrowind::postgres {

CallSession::CallSession(std::shared_ptr<SilentServers> servers, std::shared_ptr<KeptSessions> kept,
                         std::string connection_string)
    : servers_(std::move(servers)),
      kept_(std::move(kept)),
      connection_string_(std::move(connection_string)),
      uri_(connection_string_),
      time_(uri_.CallTimeout()) {
  if (uri_.Keeping() != SessionKeeping::kNever) {
    login_ = LoginOf(connection_string_);
    if (servers_->NextTry(connection_string_)) {
      kept_->Close(login_);
    } else {
      const CallTime::Step step(time_);
      session_ = kept_->Take(login_, time_.Left() / kPartForTrying);
    }
  }
  if (!session_ || !IsOfWantedKind()) ConnectAnew();
}

CallSession::~CallSession() {
  if (session_ && uri_.Keeping() != SessionKeeping::kNever) {
    kept_->Keep(login_, uri_.Keeping(), std::move(session_));
  }
}

void CallSession::BeginReset() {
  if (kept_->IsFit(*session_, uri_.Keeping())) {
    session_->is_being_reset = postgres::BeginReset(session_->connection);
  }
}

void CallSession::EndReset() {
  if (!std::exchange(session_->is_being_reset, false)) return;
  const CallTime::Step step(time_);
  ServerConnection& connection = session_->connection;
  const bool is_reset = postgres::EndReset(connection, time_.Left() / kPartForTrying);
  if (!is_reset || !SeemsAlive(connection)) ConnectAnew();
}

void CallSession::ConnectAnew() {
  // Where one is of no more use, others that were made at the same time are hardly.
  if (std::exchange(session_, nullptr)) kept_->Close(login_);
  has_answered_ = false;
  const CallTime::Step step(time_);
  session_ = std::make_unique<Session>(servers_->Connect(connection_string_, uri_, time_.Left()));
}

bool CallSession::IsOfWantedKind() const {
  return IsOfKind(session_->connection, uri_.ValueOf("target_session_attrs"));
}

}  // namespace ferrowind::postgres
