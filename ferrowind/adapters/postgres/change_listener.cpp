#include "ferrowind/adapters/postgres/change_listener.h"

#include <algorithm>

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

}  // namespace

bool ChangeListener::Look() {
  return platform::WithFailuresOnly([&] {
    try {
      HeedSilence();
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
  return stage_ == Stage::kOff || stage_ == Stage::kListening ? kIdlePause : kStepPause;
}

void ChangeListener::HeedSilence() {
  const bool is_silent = servers_->NextTry(connection_string_).has_value();
  if (is_silent && stage_ == Stage::kListening) GiveUp();
  if (!is_silent && was_silent_ && stage_ == Stage::kOff) next_try_ = Clock::now();
  was_silent_ = is_silent;
}

void ChangeListener::BeginToConnect() {
  attempt_ = std::make_unique<ConnectionAttempt>(uri_, servers_->Dead(), kTimeToConnect);
  stage_ = Stage::kConnecting;
  deadline_ = Clock::now() + kTimeToConnect;
}

bool ChangeListener::GoOnConnecting() {
  if (attempt_->GoOn(Clock::now())) {
    connection_ = attempt_->Take();
    attempt_.reset();
    servers_->Answered(connection_string_);
    return true;
  }
  if (Clock::now() < deadline_) return false;
  throw NoAnswer("08001", attempt_->DatabaseName(), kTimeToConnect);
}

void ChangeListener::AskToBeNotified() {
  if (PQsetnonblocking(connection_.get(), 1) != 0 || PQsendQuery(connection_.get(), kListen) != 1) {
    throw LinkFailure(connection_.get());
  }
  stage_ = Stage::kAsking;
}

bool ChangeListener::IsAgreed() {
  if (PQflush(connection_.get()) < 0) throw LinkFailure(connection_.get());
  TakeWhatCame();
  // To the end, behind which only notifications are taken in: rows of an answer that goes on for ever would
  // be kept.
  while (PQisBusy(connection_.get()) == 0) {
    const QueryResult answer(PQgetResult(connection_.get()));
    if (!answer && stage_ == Stage::kAgreed) return true;
    if (PQresultStatus(answer.get()) != PGRES_COMMAND_OK) {
      throw answer ? ResultFailure(connection_.get(), answer.get())
                   : StrangeAnswer(connection_.get(), "none");
    }
    stage_ = Stage::kAgreed;
  }
  if (Clock::now() < deadline_) return false;
  throw NoAnswer("08006", NameOfDatabase(connection_.get()), kTimeToConnect);
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
  attempt_.reset();
  connection_.reset();
  stage_ = Stage::kOff;
  next_try_ = Clock::now() + next_delay_;
  next_delay_ = std::min(next_delay_ * 2, kLongestDelay);
}

}  // namespace ferrowind::postgres
