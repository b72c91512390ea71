#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/procedure_signature.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::postgres {

enum class CallTransaction {
  /// The call is a transaction, committed before it returns.
  kOwn,
  /// The call is part of the transaction that is open; when it fails the transaction can only be undone.
  kOpen,
};

/// Calls the procedure in one round trip, by the contract of `platform::Connection::Call`. Failures name the
/// procedure as `asked_name`.
[[nodiscard]] platform::CallOutcome CallProcedure(ServerConnection& connection,
                                                  const ProcedureSignature& signature,
                                                  const std::string& asked_name,
                                                  const std::vector<platform::Value>& inputs,
                                                  CallTransaction transaction);

}  // namespace ferrowind::postgres
