#include "ferrowind/adapters/postgres/server_connection.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include <poll.h>

#include "ferrowind/adapters/postgres/connection_attempt.h"
#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/dead_places.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/socket_wait.h"

namespace ferrowind::postgres {
namespace {

using std::chrono::milliseconds;

/// How much of the time of a call is left for the answer to the request to stop.
constexpr int kPartForStopping = 10;
/// After which what an encrypted connection has read ahead is looked for: its socket does not tell of it.
constexpr milliseconds kLookAtReadAhead{20};
constexpr milliseconds kLookWhetherStopped{100};

platform::Failure ToldToStop(const std::string& database) {
  return {platform::failure_number::kInvalidArgument, database + " was told to stop"};
}

ConnectionHandle Connected(const std::string& text, const std::function<bool()>& is_stopped) {
  using Clock = ConnectionAttempt::Clock;
  const ConnectionUri uri(text);
  DeadPlaces dead;
  ConnectionAttempt attempt(uri, dead, uri.CallTimeout());
  const auto end = Clock::now() + uri.CallTimeout();
  while (!attempt.GoOn(is_stopped ? std::min(end, Clock::now() + kLookWhetherStopped) : end)) {
    if (is_stopped && is_stopped()) throw ToldToStop(attempt.DatabaseName());
    if (Clock::now() >= end) throw NoAnswer("08001", attempt.DatabaseName(), uri.CallTimeout());
  }
  return attempt.Take();
}

/// Whether the server says that it has committed without waiting for its standby any longer: somebody ended
/// the wait, or the server is being stopped. The text itself may be in any language.
bool IsOfStandby(const PGresult* notice) {
  const auto field = [&](int code) {
    const char* const text = PQresultErrorField(notice, code);
    return std::string_view(text != nullptr ? text : "");
  };
  const bool is_of_state = field(PG_DIAG_SQLSTATE) == "01000" || field(PG_DIAG_SQLSTATE) == "57P01";
  return is_of_state && (field(PG_DIAG_SOURCE_FUNCTION) == "SyncRepWaitForLSN" ||
                         field(PG_DIAG_MESSAGE_PRIMARY).find("synchronous replication") != std::string::npos);
}

bool IsFarewell(const PGresult* notice) {
  const char* const severity = PQresultErrorField(notice, PG_DIAG_SEVERITY_NONLOCALIZED);
  return severity != nullptr && std::string_view(severity) == "FATAL";
}

bool IsDone(const PGresult* result) {
  const auto status = PQresultStatus(result);
  return status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK;
}

}  // namespace

ServerConnection::ServerConnection(const std::string& uri, std::function<bool()> is_stopped)
    : ServerConnection(Connected(uri, is_stopped)) {
  is_stopped_ = std::move(is_stopped);
}

ServerConnection::ServerConnection(ConnectionHandle connection)
    : connection_(std::move(connection)), form_of_answers_(AnswerParts::FormOver(Get())) {
  PQsetNoticeReceiver(Get(), TakeNotice, this);
  if (PQsetnonblocking(Get(), 1) != 0) throw LinkFailure(Get());
}

void ServerConnection::LimitWaits(milliseconds time, LateWork late) {
  time_ = time;
  gives_up_at_ = Clock::now() + time;
  stops_at_ = late == LateWork::kLeft ? gives_up_at_ : gives_up_at_ - time / kPartForStopping;
  cancel_.reset();
}

milliseconds ServerConnection::TimeLeft() const {
  if (gives_up_at_ == Clock::time_point::max()) return milliseconds::max();
  return std::max(milliseconds::zero(),
                  std::chrono::duration_cast<milliseconds>(gives_up_at_ - Clock::now()));
}

void ServerConnection::OutliveCancel() {
  if (cancel_ && !cancel_->IsOver(gives_up_at_)) GiveUp();
}

// libpq would print notices, which but for two are for nobody here.
void ServerConnection::TakeNotice(void* connection, const PGresult* notice) {
  // What a server says to nobody who has asked, before it goes.
  if (IsFarewell(notice)) static_cast<ServerConnection*>(connection)->GiveUp();
  if (!IsOfStandby(notice)) return;
  const char* const text = PQresultErrorField(notice, PG_DIAG_MESSAGE_PRIMARY);
  static_cast<ServerConnection*>(connection)->unconfirmed_ = text != nullptr ? text : "";
}

QueryResult ServerConnection::Query(const std::string& sql, const std::vector<std::string>& parameters) {
  std::vector<const char*> values;
  values.reserve(parameters.size());
  for (const auto& parameter : parameters) values.push_back(parameter.c_str());
  if (PQsendQueryParams(Get(), sql.c_str(), static_cast<int>(values.size()), nullptr, values.data(), nullptr,
                        nullptr, 1) != 1) {
    throw LinkFailure(Get());
  }
  QueryResult answer = TakeLastAnswer();
  if (PQresultStatus(answer.get()) != PGRES_TUPLES_OK) throw ResultFailure(Get(), answer.get());
  return answer;
}

void ServerConnection::RunScript(const std::string& sql) { static_cast<void>(Run(sql)); }

void ServerConnection::Commit() { RequireCommitted(Run("COMMIT").get()); }

void ServerConnection::RequireCommitted(PGresult* answer) {
  const bool is_told = std::string_view(PQcmdStatus(answer)) == "COMMIT";
  if (is_told && PQtransactionStatus(Get()) == PQTRANS_IDLE) return;
  GiveUp();
  throw StrangeAnswer(Get(), "no word that what was done is kept");
}

QueryResult ServerConnection::Run(const std::string& sql) {
  if (PQsendQuery(Get(), sql.c_str()) != 1) throw LinkFailure(Get());
  QueryResult answer = TakeLastAnswer();
  if (const auto unconfirmed = TakeUnconfirmed()) throw platform::Failure(*unconfirmed);
  return answer;
}

QueryResult ServerConnection::TakeLastAnswer() {
  std::optional<platform::Failure> failure;
  QueryResult last;
  while (QueryResult answer = TakeAnswer()) {
    if (!failure && !IsDone(answer.get())) failure = ResultFailure(Get(), answer.get());
    last = std::move(answer);
  }
  if (failure) throw platform::Failure(*failure);
  if (!last) throw StrangeAnswer(Get(), "none");
  return last;
}

QueryResult ServerConnection::TakeAnswer() {
  AnswerParts parts(Get(), form_of_answers_);
  try {
    do {
      AwaitAnswer(parts);
    } while (!parts.Add(QueryResult(PQgetResult(Get()))));
  } catch (...) {
    GiveUp();
    throw;
  }
  return parts.Take();
}

void ServerConnection::AwaitAnswer(AnswerParts& answer) {
  // Of what goes wrong, PQgetResult tells.
  while (PQflush(Get()) >= 0 && PQisBusy(Get()) == 1) {
    const bool is_unsent = PQflush(Get()) == 1;
    AwaitServer(static_cast<short>(is_unsent ? POLLIN | POLLOUT : POLLIN));
    if (!answer.Read()) return;
  }
}

void ServerConnection::BeginCopy(const std::string& sql, ExecStatusType direction) {
  if (PQsendQuery(Get(), sql.c_str()) != 1) throw LinkFailure(Get());
  // Rows in the place of the copy would not be kept, however many.
  AnswerParts answer(Get(), AnswerParts::Form::kRows);
  AwaitAnswer(answer);
  const QueryResult begun(PQgetResult(Get()));
  if (PQresultStatus(begun.get()) == direction) return;
  GiveUp();
  throw ResultFailure(Get(), begun.get());
}

void ServerConnection::AwaitSent() {
  while (PQflush(Get()) == 1) {
    AwaitServer(POLLIN | POLLOUT);
    // A server that refuses what it is sent says so meanwhile, and might take no more before that is read.
    if (PQconsumeInput(Get()) != 1) break;
  }
  if (PQflush(Get()) == 0) return;
  GiveUp();
  throw LinkFailure(Get());
}

void ServerConnection::AwaitInput() {
  // Nothing comes over a connection that was lost, and nothing tells so.
  if (!IsAlive()) throw LinkFailure(Get());
  AwaitServer(POLLIN);
  if (PQconsumeInput(Get()) == 1) return;
  GiveUp();
  throw LinkFailure(Get());
}

void ServerConnection::AwaitServer(short events) {
  const bool reads_ahead = PQsslInUse(Get()) == 1;
  for (;;) {
    const auto now = Clock::now();
    if (now >= gives_up_at_) {
      is_silent_ = true;
      GiveUp();
      throw NoAnswer("08006", DatabaseName(), time_);
    }
    if (now >= stops_at_ && !cancel_) cancel_.emplace(Get());
    StopIfAsked();
    auto until = cancel_ ? gives_up_at_ : stops_at_;
    if (reads_ahead) until = std::min(until, now + kLookAtReadAhead);
    if (is_stopped_) until = std::min(until, now + kLookWhetherStopped);
    if (AwaitSocket(PQsocket(Get()), events, until) || reads_ahead) return;
  }
}

void ServerConnection::StopIfAsked() {
  if (!is_stopped_ || !is_stopped_()) return;
  cancel_.emplace(Get());
  // In vain where the server does not answer; closing the connection undoes what it was at, later.
  static_cast<void>(cancel_->IsOver(Clock::now() + std::chrono::seconds(1)));
  GiveUp();
  throw ToldToStop(DatabaseName());
}

std::optional<platform::Failure> ServerConnection::TakeUnconfirmed() {
  if (unconfirmed_.empty()) return std::nullopt;
  return Unconfirmed(Get(), std::exchange(unconfirmed_, {}));
}

std::string ServerConnection::DatabaseName() const { return NameOfDatabase(Get()); }

}  // namespace ferrowind::postgres
