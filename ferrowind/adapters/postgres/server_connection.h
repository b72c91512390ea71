#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/answer_parts.h"
#include "ferrowind/adapters/postgres/cancel_request.h"
#include "ferrowind/adapters/postgres/connection_handle.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

/// An open connection to a server. Used by one thread; closed when destroyed, which undoes a transaction that
/// is not committed. Results come in the binary format.
class ServerConnection {
 public:
  using Clock = std::chrono::steady_clock;

  /// Connects as `uri` (connection_uri.h) says, which takes no longer than a call may wait there. What it
  /// runs may last as long as it likes: an administrator's work, which knows itself how long that is.
  /// `is_stopped` is asked again and again, from the beginning on, whether to give up; null asks nobody.
  explicit ServerConnection(const std::string& uri, std::function<bool()> is_stopped = {});
  /// Takes over a connection for calls, whose time is limited.
  explicit ServerConnection(ConnectionHandle connection);
  ServerConnection(const ServerConnection&) = delete;
  ServerConnection& operator=(const ServerConnection&) = delete;
  ~ServerConnection() = default;

  enum class LateWork {
    /// When little of the time is left, the server is told to stop what it does.
    kStopped,
    /// It does nothing that would matter later.
    kLeft,
  };
  /// From now on the server is waited for `time` in all. One that has not answered then is given up: the
  /// failure is a `NoAnswer`, and the connection of no more use.
  void LimitWaits(std::chrono::milliseconds time, LateWork late);
  /// The server was told to stop since the waiting was limited.
  [[nodiscard]] bool WasToldToStop() const { return cancel_.has_value(); }
  /// It did not answer in time, and nothing else is known of it.
  [[nodiscard]] bool IsSilent() const { return is_silent_; }
  /// What is left of the time.
  [[nodiscard]] std::chrono::milliseconds TimeLeft() const;
  /// After the server was told to stop, waits until nothing that is run next can be meant by it, within the
  /// time that is left; otherwise the connection is given up.
  void OutliveCancel();
  /// Asks nobody from now on whether to give up: what comes is the end, and is waited for.
  void StopNoMore() { is_stopped_ = {}; }

  /// Runs one statement, which is to give rows, with the texts `parameters` for $1, $2, ...
  [[nodiscard]] QueryResult Query(const std::string& sql, const std::vector<std::string>& parameters = {});
  /// Runs the statements of a script, dropping their rows.
  void RunScript(const std::string& sql);
  /// Commits the transaction that is open.
  void Commit();
  /// A failure, after which the connection is of no more use, unless `answer` and the state of the connection
  /// say that the transaction was committed: a server answers ROLLBACK to the COMMIT of what it does not
  /// keep.
  void RequireCommitted(PGresult* answer);

  /// The answer to the next of the statements that were sent, or its error; null behind the last one, and in
  /// a pipeline behind each. Fails as `AnswerParts` does, and when it has been waited for as long as allowed.
  [[nodiscard]] QueryResult TakeAnswer();
  /// Sends a statement that copies rows, COPY_OUT or COPY_IN as `direction` says, and waits as `TakeAnswer`
  /// does until the server begins. Anything else that it answers is a failure, after which the connection is
  /// of no more use.
  void BeginCopy(const std::string& sql, ExecStatusType direction);
  /// Waits as `TakeAnswer` does until the server has sent something, and takes it in. For who reads a stream.
  void AwaitInput();
  /// Waits as `TakeAnswer` does until all that was sent has left. For who writes a stream.
  void AwaitSent();
  /// What else the other side says is not listened to: the connection is of no more use.
  void GiveUp() { is_given_up_ = true; }

  /// The failure that a change which was committed here since it was last asked for has not reached the
  /// standby that the server waits for; nothing when all have, or none is waited for.
  [[nodiscard]] std::optional<platform::Failure> TakeUnconfirmed();

  [[nodiscard]] bool IsAlive() const { return !is_given_up_ && PQstatus(Get()) == CONNECTION_OK; }
  /// As failures name it.
  [[nodiscard]] std::string DatabaseName() const;
  [[nodiscard]] PGconn* Get() const { return connection_.get(); }

 private:
  static void TakeNotice(void* connection, const PGresult* notice);

  void AwaitAnswer(AnswerParts& answer);
  /// Returns when there is something to read or, where `events` has it, room to write; or for a look at what
  /// an encrypted connection may have kept back.
  void AwaitServer(short events);
  void StopIfAsked();
  /// Gives the answer to the last statement.
  [[nodiscard]] QueryResult Run(const std::string& sql);
  /// The answer to the last of the statements that were sent. Fails with the first error of any.
  [[nodiscard]] QueryResult TakeLastAnswer();

  ConnectionHandle connection_;
  AnswerParts::Form form_of_answers_;
  std::chrono::milliseconds time_ = std::chrono::milliseconds::max();
  Clock::time_point stops_at_ = Clock::time_point::max();
  Clock::time_point gives_up_at_ = Clock::time_point::max();
  std::optional<CancelRequest> cancel_;
  std::function<bool()> is_stopped_;
  bool is_given_up_ = false;
  bool is_silent_ = false;
  /// What the server said of a standby that did not confirm; empty when it said nothing.
  std::string unconfirmed_;
};

}  // namespace ferrowind::postgres
