#include "ferrowind/adapters/sqlite/engine_connection.h"

#include <utility>

#include "ferrowind/adapters/sqlite/body_authorizer.h"
#include "ferrowind/adapters/sqlite/call_history.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/procedure_interpreter.h"
#include "ferrowind/adapters/sqlite/row_recorder.h"
#include "ferrowind/platform/database/call_inputs.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::sqlite {

using platform::Failure;
using platform::Value;

EngineConnection::EngineConnection(DatabaseHandle database, std::chrono::milliseconds longest_call)
    : database_(std::move(database)), longest_call_(longest_call), schema_(database_) {
  const StatementLimit limit(database_, longest_call_);
  schema_.Look();
  catalogue_.emplace(database_);
}

std::vector<platform::ParameterDescription> EngineConnection::DescribeProcedure(
    const std::string& procedure) {
  return platform::WithFailuresOnly([&] {
    const StatementLimit limit(database_, longest_call_);
    schema_.Look();
    LoadProcedure(procedure);
    return procedure_->parameters;
  });
}

platform::CallOutcome EngineConnection::Call(const std::string& procedure, const std::vector<Value>& inputs) {
  return platform::WithFailuresOnly([&] {
    if (!procedure_ || asked_name_ != procedure) {
      const StatementLimit limit(database_, longest_call_);
      LoadProcedure(procedure);
    }
    platform::RefuseWrongInputs(procedure_->name, procedure_->parameters, inputs);
    if (joined_) return CallJoined(inputs);
    Transaction transaction(database_,
                            procedure_->writes ? Transaction::Kind::kWriting : Transaction::Kind::kReading);
    platform::CallOutcome outcome = Run(inputs);
    if (outcome.return_value == 0) transaction.Commit();
    return outcome;
  });
}

platform::CallOutcome EngineConnection::CallJoined(const std::vector<Value>& inputs) {
  database_.Execute("SAVEPOINT JoinedCall");
  platform::CallOutcome outcome = Run(inputs);
  if (outcome.return_value != 0) database_.Execute("ROLLBACK TO JoinedCall");
  database_.Execute("RELEASE JoinedCall");
  return outcome;
}

void EngineConnection::JoinCalls() { joined_.emplace(database_, Transaction::Kind::kWriting); }

void EngineConnection::CommitJoined() {
  joined_->Commit();
  joined_.reset();
}

platform::CallOutcome EngineConnection::Run(const std::vector<Value>& inputs) {
  // From here on, since other programs may have kept this one waiting.
  const StatementLimit limit(database_, longest_call_);
  schema_.Look();
  return procedure_->writes ? Change(inputs, limit) : Read(inputs, limit);
}

platform::CallOutcome EngineConnection::Read(const std::vector<Value>& inputs, const StatementLimit& limit) {
  const BodyAuthorizer authorizer(database_, false);
  return ProcedureInterpreter(database_, *procedure_, inputs, limit).Run();
}

platform::CallOutcome EngineConnection::Change(const std::vector<Value>& inputs,
                                               const StatementLimit& limit) {
  RequireDeliveredVersion(database_);
  const auto changes_before = sqlite3_total_changes64(database_.Get());
  RowRecorder recorder(database_);
  ProcedureInterpreter interpreter(database_, *procedure_, inputs, limit);
  platform::CallOutcome outcome;
  {
    const BodyAuthorizer authorizer(database_, true);
    outcome = interpreter.Run();
  }
  if (outcome.return_value == 0) {
    const auto rows_changed = sqlite3_total_changes64(database_.Get()) - changes_before;
    const auto replaced_rows = recorder.TakeRows();
    AddToHistory(
        database_,
        {*procedure_, inputs, interpreter.Variable("ID1"), interpreter.Variable("Year1"), rows_changed},
        replaced_rows);
  }
  return outcome;
}

void EngineConnection::LoadProcedure(const std::string& name) {
  auto found = catalogue_->Find(name);
  if (!found) {
    throw Failure(platform::failure_number::kInvalidArgument,
                  "The database " + database_.Path() + " has no procedure " + name);
  }
  procedure_ = std::move(found);
  asked_name_ = name;
}

}  // namespace ferrowind::sqlite
