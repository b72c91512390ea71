#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/schema_guard.h"
#include "ferrowind/adapters/sqlite/statement_limit.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::sqlite {

/// A connection to a database file. What it reads of a procedure to describe it, a call right after uses
/// again.
class EngineConnection : public platform::Connection {
 public:
  /// Looks into the file; one that is no calendar database is a failure. What takes longer than
  /// `longest_call` fails.
  EngineConnection(DatabaseHandle database, std::chrono::milliseconds longest_call);

  [[nodiscard]] std::vector<platform::ParameterDescription> DescribeProcedure(
      const std::string& procedure) override;
  /// One that returns another value than 0 among joined calls does nothing either.
  [[nodiscard]] platform::CallOutcome Call(const std::string& procedure,
                                           const std::vector<platform::Value>& inputs) override;

  /// Makes all calls from now on one transaction, which keeps other writers out. Precondition: they are not
  /// joined yet. Unless `CommitJoined` is called nothing is done.
  void JoinCalls();
  void CommitJoined();

 private:
  [[nodiscard]] platform::CallOutcome CallJoined(const std::vector<platform::Value>& inputs);
  /// In the transaction that is open.
  [[nodiscard]] platform::CallOutcome Run(const std::vector<platform::Value>& inputs);
  [[nodiscard]] platform::CallOutcome Read(const std::vector<platform::Value>& inputs,
                                           const StatementLimit& limit);
  /// Adds the call to the history.
  [[nodiscard]] platform::CallOutcome Change(const std::vector<platform::Value>& inputs,
                                             const StatementLimit& limit);
  void LoadProcedure(const std::string& name);

  DatabaseHandle database_;
  /// That of joined calls.
  std::optional<Transaction> joined_;
  std::chrono::milliseconds longest_call_;
  SchemaGuard schema_;
  /// Always there; made behind the first look at the schema.
  std::optional<ProcedureCatalogue> catalogue_;
  /// The procedure that was described last, and the name that it was asked for by.
  std::optional<sql_script::ProcedureDefinition> procedure_;
  std::string asked_name_;
};

}  // namespace ferrowind::sqlite
