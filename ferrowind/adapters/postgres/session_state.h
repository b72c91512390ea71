#pragma once

#include <chrono>
#include <string_view>

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// Asks the server to forget all that calls may have left on the connection, without waiting for its answer.
/// False when it cannot be asked: a call is not over, or the connection is of no more use.
[[nodiscard]] bool BeginReset(ServerConnection& connection);

/// Waits at most `time` for the answer to that. False when it did not come, or the server has not forgotten
/// all; then the connection is of no more use.
[[nodiscard]] bool EndReset(ServerConnection& connection, std::chrono::milliseconds time);

/// Whether the other side is still there as far as that is known without asking it: it has neither said
/// farewell nor closed the connection.
[[nodiscard]] bool SeemsAlive(ServerConnection& connection);

/// Whether the server is of the kind that `target_session_attrs` of a connection string wants, as it has last
/// told itself; one that tells nothing of it is as it was when it was connected to.
[[nodiscard]] bool IsOfKind(const ServerConnection& connection, std::string_view target_session_attrs);

}  // namespace ferrowind::postgres
