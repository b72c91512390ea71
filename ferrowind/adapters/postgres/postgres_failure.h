#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres_calls/sql_state.h"
#include "ferrowind/platform/values/failure.h"

/// The one place where the errors of the server and of libpq become failures.
///
/// A description says in plain words what is wrong and ends with the SQLSTATE and the text of the server or
/// of libpq. No password is ever in it: neither of them prints one of a connection string that
/// `ConnectionUri` lets through.
namespace ferrowind::postgres {

/// That there is no memory for a connection.
[[nodiscard]] platform::Failure NoMemoryForConnection();

/// That no connection to `database` (as `NameOfDatabase` names it) was made, and why not.
[[nodiscard]] platform::Failure ConnectFailure(const std::string& database, const std::string& reasons);

/// The same, where a pool in front of the server refuses the "options" of the connection string.
[[nodiscard]] platform::Failure OptionsRefused(const std::string& database, const std::string& reasons);

/// That a server does not answer; `seconds` until a call tries again.
[[nodiscard]] platform::Failure SilentServer(const std::string& database, std::int64_t seconds);

/// That a server did not answer in time, of which nothing else is known.
class NoAnswer : public platform::Failure {
 public:
  /// "08001" while it was being connected to, "08006" behind that.
  NoAnswer(std::string_view sqlstate, const std::string& database, std::chrono::milliseconds time);
};

/// That a change is stored, of which the server told by `notice` that no standby has confirmed it.
[[nodiscard]] platform::Failure Unconfirmed(const PGconn* connection, const std::string& notice);
/// Whether `failure` is that.
[[nodiscard]] bool IsUnconfirmed(const platform::Failure& failure);

/// What the server answered in `result`, which is no success; a lost connection when that is why.
[[nodiscard]] platform::Failure ResultFailure(const PGconn* connection, const PGresult* result);

/// That the connection was lost, or that libpq could not use it.
[[nodiscard]] platform::Failure LinkFailure(const PGconn* connection);

/// That the other side answered in a way that no server does; `answer` says what it gave.
[[nodiscard]] platform::Failure StrangeAnswer(const PGconn* connection, const std::string& answer);

/// "The database NAME at HOST:PORT" for messages.
[[nodiscard]] std::string NameOfDatabase(const PGconn* connection);

/// "HOST:PORT"; empty when libpq does not say.
[[nodiscard]] std::string NameOfServer(const PGconn* connection);

}  // namespace ferrowind::postgres
