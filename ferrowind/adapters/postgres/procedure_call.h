#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres_calls/procedure_signature.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::postgres {

enum class CallTransaction {
  /// The call is a transaction, committed before it returns.
  kOwn,
  /// The call is part of the transaction that is open; when it fails the transaction can only be undone.
  kOpen,
};

/// What the server has answered to a call that it is done with.
struct ProcedureAnswer {
  QueryResult return_value;
  std::vector<QueryResult> record_sets;
};

/// Calls the procedure in one round trip, by the contract of `platform::Connection::Call`; `ReadOutcome`
/// tells the rest. Failures of both name the procedure as `asked_name`.
[[nodiscard]] ProcedureAnswer RunProcedure(ServerConnection& connection, const ProcedureSignature& signature,
                                           const std::string& asked_name,
                                           const std::vector<platform::Value>& inputs,
                                           CallTransaction transaction);

/// What the call gave; needs no connection any more.
[[nodiscard]] platform::CallOutcome ReadOutcome(const ProcedureAnswer& answer, const std::string& asked_name);

}  // namespace ferrowind::postgres
