#pragma once

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "ferrowind/adapters/postgres/call_session.h"
#include "ferrowind/adapters/postgres/procedure_call.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres_calls/procedure_signature.h"
#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

/// Calls over a connection to a server. What is asked of a procedure to describe it, a call right after uses
/// again.
class EngineConnection : public platform::Connection {
 public:
  /// Each call is a transaction.
  explicit EngineConnection(std::unique_ptr<CallSession> session);
  /// Calls are part of the transaction that is open on `connection`, and may last as long as they like.
  /// Others may share it for as long as only one of them uses it at a time.
  explicit EngineConnection(std::shared_ptr<ServerConnection> connection);

  [[nodiscard]] std::vector<platform::ParameterDescription> DescribeProcedure(
      const std::string& procedure) override;
  [[nodiscard]] platform::CallOutcome Call(const std::string& procedure,
                                           const std::vector<platform::Value>& inputs) override;

 private:
  /// What a call and the description in front of it wait is counted together.
  void BeginCallIfLastIsOver();
  void Describe(const std::string& procedure);
  [[nodiscard]] platform::CallOutcome CallDescribed(const std::vector<platform::Value>& inputs);
  /// Whether a call that has failed, of which the server keeps nothing, may succeed as it was meant: it was
  /// described by what the session remembers, or made on a session whose server changes nothing any more.
  /// Then the procedure is described anew.
  [[nodiscard]] bool IsWorthAnotherTry(const platform::Failure& failure);

  /// One of the two is null.
  std::unique_ptr<CallSession> session_;
  std::shared_ptr<ServerConnection> connection_;
  bool has_called_ = false;
  /// The procedure that was described last, and the name that it was asked for by.
  std::optional<ProcedureSignature> signature_;
  std::string asked_name_;
  bool is_remembered_ = false;
};

}  // namespace ferrowind::postgres
