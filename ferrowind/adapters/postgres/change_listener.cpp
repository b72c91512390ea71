#include "ferrowind/adapters/postgres/change_listener.h"

#include <algorithm>

#include <poll.h>

#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::postgres {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr const char* kListen = "LISTEN ferrowind_change";
/// While nothing happens, and while the server answers a step of the connecting.
constexpr milliseconds kIdlePause = seconds(2);
constexpr milliseconds kStepPause{50};
constexpr milliseconds kLongestDelay = seconds(60);
constexpr seconds kTimeToConnect{10};

bool IsReady(const PGconn* connection, PostgresPollingStatusType direction) {
  pollfd socket{PQsocket(connection),
                static_cast<short>(direction == PGRES_POLLING_READING ? POLLIN : POLLOUT), 0};
  return poll(&socket, 1, 0) > 0;
}

}  // namespace

bool ChangeListener::Look() {
  return platform::WithFailuresOnly([&] {
    try {
      if (stage_ == Stage::kListening) return HasNews();
      if (stage_ == Stage::kOff) {
        if (Clock::now() < next_try_) return false;
        BeginToConnect();
      }
      if (stage_ == Stage::kConnecting) {
        if (!GoOnConnecting()) return false;
        AskToBeNotified();
      }
      if (!IsAgreed()) return false;
      stage_ = Stage::kListening;
      next_delay_ = kFirstDelay;
      return true;
    } catch (const platform::Failure&) {
      GiveUp();
      throw;
    }
  });
}

milliseconds ChangeListener::Pause() const {
  return stage_ == Stage::kConnecting || stage_ == Stage::kAsking ? kStepPause : kIdlePause;
}

void ChangeListener::BeginToConnect() {
  const ConnectionArguments arguments(uri_);
  connection_.reset(PQconnectStartParams(arguments.Keywords(), arguments.Values(), 0));
  if (!connection_ || PQstatus(connection_.get()) == CONNECTION_BAD) throw ConnectFailure(connection_.get());
  stage_ = Stage::kConnecting;
  waits_for_ = PGRES_POLLING_WRITING;
  deadline_ = Clock::now() + kTimeToConnect;
}

bool ChangeListener::GoOnConnecting() {
  while (IsReady(connection_.get(), waits_for_)) {
    waits_for_ = PQconnectPoll(connection_.get());
    if (waits_for_ == PGRES_POLLING_OK) return true;
    if (waits_for_ == PGRES_POLLING_FAILED) throw ConnectFailure(connection_.get());
  }
  if (Clock::now() < deadline_) return false;
  throw FailureOfState("08001", NameOfDatabase(connection_.get()) + " cannot be connected to",
                       "the server does not answer");
}

void ChangeListener::AskToBeNotified() {
  PQsetNoticeReceiver(connection_.get(), DropNotice, nullptr);
  if (PQsetnonblocking(connection_.get(), 1) != 0 || PQsendQuery(connection_.get(), kListen) != 1) {
    throw LinkFailure(connection_.get());
  }
  stage_ = Stage::kAsking;
}

bool ChangeListener::IsAgreed() {
  if (PQflush(connection_.get()) < 0) throw LinkFailure(connection_.get());
  TakeWhatCame();
  if (PQisBusy(connection_.get()) == 1) {
    if (Clock::now() < deadline_) return false;
    throw FailureOfState("08006", NameOfDatabase(connection_.get()) + " was disconnected",
                         "the server does not answer");
  }
  // What ends the answer is taken in with the notifications.
  const QueryResult answer(PQgetResult(connection_.get()));
  if (PQresultStatus(answer.get()) != PGRES_COMMAND_OK) throw ResultFailure(connection_.get(), answer.get());
  return true;
}

bool ChangeListener::HasNews() {
  TakeWhatCame();
  bool is_news = false;
  while (PGnotify* const notification = PQnotifies(connection_.get())) {
    PQfreemem(notification);
    is_news = true;
  }
  return is_news;
}

void ChangeListener::TakeWhatCame() {
  if (PQconsumeInput(connection_.get()) != 1) throw LinkFailure(connection_.get());
}

void ChangeListener::GiveUp() {
  connection_.reset();
  stage_ = Stage::kOff;
  next_try_ = Clock::now() + next_delay_;
  next_delay_ = std::min(next_delay_ * 2, kLongestDelay);
}

}  // namespace ferrowind::postgres
