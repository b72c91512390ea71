#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres_calls/procedure_signature.h"

namespace ferrowind::postgres {

/// A procedure as a server has described it.
struct DescribedProcedure {
  ProcedureSignature signature;
  /// The server's process that described it.
  std::int32_t process = 0;
};

/// Asks the server for the procedure `name`, letter case ignored. A procedure that is missing, that exists
/// more than once, or that is not of the form that calls take, is a failure that names it. One round trip.
[[nodiscard]] DescribedProcedure ReadSignature(ServerConnection& connection, const std::string& name);

}  // namespace ferrowind::postgres
