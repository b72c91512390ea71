#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/procedure_call.h"
#include "ferrowind/adapters/postgres/procedure_signature.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::postgres {

/// Calls over a connection to a server. What is asked of a procedure to describe it, a call right after uses
/// again.
class EngineConnection : public platform::Connection {
 public:
  /// `transaction` says whether each call is a transaction. Others may share `connection` for as long as only
  /// one of them uses it at a time.
  EngineConnection(std::shared_ptr<ServerConnection> connection, CallTransaction transaction);

  [[nodiscard]] std::vector<platform::ParameterDescription> DescribeProcedure(
      const std::string& procedure) override;
  [[nodiscard]] platform::CallOutcome Call(const std::string& procedure,
                                           const std::vector<platform::Value>& inputs) override;

 private:
  std::shared_ptr<ServerConnection> connection_;
  CallTransaction transaction_;
  /// The procedure that was described last, and the name that it was asked for by.
  std::optional<ProcedureSignature> signature_;
  std::string asked_name_;
};

}  // namespace ferrowind::postgres
