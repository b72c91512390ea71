#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/odbc/server_link.h"
#include "ferrowind/adapters/postgres_calls/procedure_signature.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::odbc {

/// Calls over a connection to a server. What is asked of a procedure to describe it, a call right after uses
/// again.
class EngineConnection : public platform::Connection {
 public:
  explicit EngineConnection(const ConnectionString& connection) : link_(connection) {}

  [[nodiscard]] std::vector<platform::ParameterDescription> DescribeProcedure(
      const std::string& procedure) override;
  [[nodiscard]] platform::CallOutcome Call(const std::string& procedure,
                                           const std::vector<platform::Value>& inputs) override;

 private:
  [[nodiscard]] std::vector<Answer> Run(const std::vector<platform::Value>& inputs);

  ServerLink link_;
  /// The procedure that was described last, and the name that it was asked for by.
  std::optional<postgres::ProcedureSignature> signature_;
  std::string asked_name_;
};

}  // namespace ferrowind::odbc
