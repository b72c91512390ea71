#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "ferrowind/adapters/odbc/connection_string.h"
#include "ferrowind/adapters/odbc/diagnostics.h"
#include "ferrowind/adapters/odbc/handle.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::odbc {

/// The rows that a statement gave, or why they cannot be read.
using Answer = std::variant<std::shared_ptr<platform::RecordSet>, platform::Failure>;

/// The rows of `answer`; throws what is there instead.
[[nodiscard]] std::shared_ptr<platform::RecordSet> RowsOf(const Answer& answer);

/// An open connection to a server by a driver. Used by one thread; closed when destroyed, which undoes a
/// transaction that is not committed.
class ServerLink {
 public:
  /// Connects. A statement that the server has not finished in time it stops itself: drivers offer no way of
  /// their own that does not wait for the server.
  explicit ServerLink(const ConnectionString& connection);
  ServerLink(const ServerLink&) = delete;
  ServerLink& operator=(const ServerLink&) = delete;
  ~ServerLink() = default;

  /// Runs statements, with the texts `inputs` for their question marks, and gives an answer for each of them
  /// that has columns. Fails with the first error.
  [[nodiscard]] std::vector<Answer> Run(const std::string& statements,
                                        const std::vector<std::string>& inputs = {});
  /// As above; the rows of the first answer.
  [[nodiscard]] std::shared_ptr<platform::RecordSet> Query(const std::string& statement,
                                                           const std::vector<std::string>& inputs = {});
  /// After a failure: nothing is left of a transaction that was open.
  void Undo() noexcept;

  /// False when nothing can be done over the connection any more, as far as is known without asking.
  [[nodiscard]] bool IsAlive() const { return is_alive_; }
  [[nodiscard]] std::chrono::milliseconds CallTimeout() const { return call_timeout_; }
  /// After how long the server stops a statement. The rest of the time of a call is for telling so.
  [[nodiscard]] std::chrono::milliseconds StatementTimeout() const { return call_timeout_ / 10 * 9; }
  /// As failures name it.
  [[nodiscard]] const std::string& DatabaseName() const { return database_name_; }

 private:
  [[nodiscard]] platform::Failure Failed(const Diagnostic& diagnostic);

  std::string database_name_;
  std::chrono::milliseconds call_timeout_;
  EnvironmentHandle environment_;
  ConnectionHandle connection_;
  bool is_alive_ = true;
};

}  // namespace ferrowind::odbc
