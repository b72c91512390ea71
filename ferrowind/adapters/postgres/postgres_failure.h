#pragma once

#include <string>
#include <string_view>

#include <libpq-fe.h>

#include "ferrowind/platform/values/failure.h"

/// The one place where the errors of the server and of libpq become failures.
///
/// A description says in plain words what is wrong and ends with the SQLSTATE and the text of the server or
/// of libpq. No password is ever in it: neither of them prints one of a connection string that
/// `ConnectionUri` lets through.
namespace ferrowind::postgres {

/// The number that a failure has for `sqlstate` (five digits and capital letters): its value to base 36.
[[nodiscard]] platform::Failure FailureOfState(std::string_view sqlstate, const std::string& plain_words,
                                               const std::string& native_text);

/// That no connection was made. `connection` may be null when there was no memory for it.
[[nodiscard]] platform::Failure ConnectFailure(const PGconn* connection);

/// What the server answered in `result`, which is no success; a lost connection when that is why.
[[nodiscard]] platform::Failure ResultFailure(const PGconn* connection, const PGresult* result);

/// That the connection was lost, or that libpq could not use it.
[[nodiscard]] platform::Failure LinkFailure(const PGconn* connection);

/// `failure` with `introduction` in front of its description.
[[nodiscard]] platform::Failure Introduced(const std::string& introduction, const platform::Failure& failure);

/// "The database NAME at HOST:PORT" for messages.
[[nodiscard]] std::string NameOfDatabase(const PGconn* connection);

}  // namespace ferrowind::postgres
