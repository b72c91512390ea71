#include "ferrowind/adapters/postgres/engine_connection.h"

#include <utility>

#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::postgres {

EngineConnection::EngineConnection(std::shared_ptr<ServerConnection> connection, CallTransaction transaction)
    : connection_(std::move(connection)), transaction_(transaction) {}

std::vector<platform::ParameterDescription> EngineConnection::DescribeProcedure(
    const std::string& procedure) {
  return platform::WithFailuresOnly([&] {
    signature_ = ReadSignature(*connection_, procedure);
    asked_name_ = procedure;
    return signature_->parameters;
  });
}

platform::CallOutcome EngineConnection::Call(const std::string& procedure,
                                             const std::vector<platform::Value>& inputs) {
  return platform::WithFailuresOnly([&] {
    if (!signature_ || asked_name_ != procedure) static_cast<void>(DescribeProcedure(procedure));
    return CallProcedure(*connection_, *signature_, procedure, inputs, transaction_);
  });
}

}  // namespace ferrowind::postgres
