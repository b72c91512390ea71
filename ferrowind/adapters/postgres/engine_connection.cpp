#include "ferrowind/adapters/postgres/engine_connection.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/signature_query.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::postgres {
namespace {

using platform::ParameterDescription;

bool IsSame(const ParameterDescription& one, const ParameterDescription& other) {
  return one.name == other.name && one.type == other.type && one.direction == other.direction;
}

}  // namespace

EngineConnection::EngineConnection(std::unique_ptr<CallSession> session) : session_(std::move(session)) {}

EngineConnection::EngineConnection(std::shared_ptr<ServerConnection> connection)
    : connection_(std::move(connection)) {}

void EngineConnection::BeginCallIfLastIsOver() {
  if (std::exchange(has_called_, false) && session_) session_->Renew();
}

std::vector<ParameterDescription> EngineConnection::DescribeProcedure(const std::string& procedure) {
  return platform::WithFailuresOnly([&] {
    BeginCallIfLastIsOver();
    const ProcedureSignature* const remembered =
        session_ ? session_->Get().signatures.Find(procedure) : nullptr;
    if (remembered != nullptr) {
      signature_ = *remembered;
    } else {
      Describe(procedure);
    }
    is_remembered_ = remembered != nullptr;
    asked_name_ = procedure;
    return signature_->parameters;
  });
}

void EngineConnection::Describe(const std::string& procedure) {
  if (!session_) {
    signature_ = ReadSignature(*connection_, procedure).signature;
    return;
  }
  DescribedProcedure described =
      session_->Read([&] { return ReadSignature(session_->Connection(), procedure); });
  session_->Get().is_direct = described.process == PQbackendPID(session_->Connection().Get());
  signature_ = std::move(described.signature);
  session_->Get().signatures.Remember(procedure, *signature_);
}

platform::CallOutcome EngineConnection::Call(const std::string& procedure,
                                             const std::vector<platform::Value>& inputs) {
  return platform::WithFailuresOnly([&] {
    BeginCallIfLastIsOver();
    if (!signature_ || asked_name_ != procedure) static_cast<void>(DescribeProcedure(procedure));
    has_called_ = true;
    try {
      return CallDescribed(inputs);
    } catch (const platform::Failure& failure) {
      if (!IsWorthAnotherTry(failure)) throw;
    }
    return CallDescribed(inputs);
  });
}

platform::CallOutcome EngineConnection::CallDescribed(const std::vector<platform::Value>& inputs) {
  if (!session_) {
    return ReadOutcome(RunProcedure(*connection_, *signature_, asked_name_, inputs, CallTransaction::kOpen),
                       asked_name_);
  }
  return session_->Within(ServerConnection::LateWork::kStopped, [&] {
    const ProcedureAnswer answer =
        RunProcedure(session_->Connection(), *signature_, asked_name_, inputs, CallTransaction::kOwn);
    session_->BeginReset();
    return ReadOutcome(answer, asked_name_);
  });
}

bool EngineConnection::IsWorthAnotherTry(const platform::Failure& failure) {
  // Over a connection that was lost nobody has said that nothing was done.
  if (!session_ || !session_->Connection().IsAlive()) return false;
  const bool is_undefined = is_remembered_ && IsOfState(failure, "42883");
  const bool is_read_only = session_->Get().was_kept && IsOfState(failure, "25006");
  if (!is_undefined && !is_read_only) return false;
  if (is_read_only) session_->ConnectAnew();
  const std::vector<ParameterDescription> described = signature_->parameters;
  Describe(asked_name_);
  is_remembered_ = false;
  return std::equal(described.begin(), described.end(), signature_->parameters.begin(),
                    signature_->parameters.end(), IsSame);
}

}  // namespace ferrowind::postgres
