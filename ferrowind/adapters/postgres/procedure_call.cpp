#include "ferrowind/adapters/postgres/procedure_call.h"

#include <cstddef>
#include <string>
#include <utility>

#include "ferrowind/adapters/postgres/pipeline.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/table_locks.h"
#include "ferrowind/adapters/postgres_calls/call_script.h"
#include "ferrowind/adapters/postgres_calls/call_trouble.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

using platform::CallOutcome;
using platform::Failure;
using platform::Value;

std::int32_t ReturnValueIn(const PGresult* result, const std::string& procedure) {
  if (const auto value = ReadWholeNumber(result)) return *value;
  throw CallWithoutReturnValue(procedure);
}

void RequireRows(ServerConnection& connection, const PGresult* answer) {
  if (PQresultStatus(answer) == PGRES_TUPLES_OK) return;
  connection.GiveUp();
  throw StrangeAnswer(connection.Get(), "no rows where a record set was fetched");
}

/// What was done is not undone when its confirmation is missing.
void RequireConfirmation(ServerConnection& connection, const std::string& procedure) {
  if (const auto unconfirmed = connection.TakeUnconfirmed()) {
    throw Introduced("The procedure " + procedure + " has done its work. ", *unconfirmed);
  }
}

/// What is known of a call that has failed.
Failure FailureOfCall(const ServerConnection& connection, const std::string& procedure,
                      const Failure& failure) {
  if (!connection.IsAlive()) return InterruptedCall(procedure, failure);
  if (connection.WasToldToStop() && IsOfState(failure, "57014")) return StoppedCall(procedure, failure);
  return FailedCall(procedure, failure);
}

bool IsOfLock(const Failure& failure) { return IsOfState(failure, "55P03"); }

/// Who is in the way of a call that has given up waiting; empty when that cannot be told in the time that is
/// left.
std::string WhoIsInTheWay(ServerConnection& connection) {
  try {
    return HoldersOfRows(connection);
  } catch (const Failure&) {
    return {};
  }
}

/// After this the connection takes the next call.
void UndoFailedTransaction(ServerConnection& connection) {
  if (!connection.IsAlive() || PQtransactionStatus(connection.Get()) == PQTRANS_IDLE) return;
  try {
    connection.RunScript("ROLLBACK");
  } catch (const Failure&) {
    // Then the server undoes it when the connection ends. What failed first is what is told.
  }
}

}  // namespace

ProcedureAnswer RunProcedure(ServerConnection& connection, const ProcedureSignature& signature,
                             const std::string& asked_name, const std::vector<Value>& inputs,
                             CallTransaction transaction) {
  RefuseWrongInputs(signature, asked_name, inputs);
  const CallScript script(signature, inputs, LockTimeout(connection.TimeLeft()), CallScript::Form::kNumbered);
  const bool is_own = transaction == CallTransaction::kOwn;
  const std::size_t record_sets = signature.RecordSetCount();
  std::vector<QueryResult> answers;
  std::size_t return_value_at = 0;
  try {
    Pipeline pipeline(connection);
    if (is_own) pipeline.Add("BEGIN");
    pipeline.Add(script.SetInputs(), script.InputTexts());
    pipeline.Add(script.Block());
    return_value_at = pipeline.Add(CallScript::ReadReturnValue());
    for (std::size_t i = 0; i < record_sets; ++i) pipeline.Add(CallScript::FetchRecordSet(i));
    if (is_own) {
      pipeline.Add("COMMIT");
    } else {
      // The next call's cursors have the same names.
      pipeline.Add("CLOSE ALL");
    }
    answers = pipeline.Run();
    for (std::size_t i = 0; i < record_sets; ++i)
      RequireRows(connection, answers[return_value_at + 1 + i].get());
    if (is_own) connection.RequireCommitted(answers.back().get());
  } catch (const Failure& failure) {
    RequireConfirmation(connection, asked_name);
    const Failure told = FailureOfCall(connection, asked_name, failure);
    if (is_own) UndoFailedTransaction(connection);
    if (is_own && connection.IsAlive() && IsOfLock(failure)) {
      throw Introduced(WhoIsInTheWay(connection), told);
    }
    throw Failure(told);
  }
  RequireConfirmation(connection, asked_name);

  ProcedureAnswer answer;
  answer.return_value = std::move(answers[return_value_at]);
  for (std::size_t i = 0; i < record_sets; ++i) {
    answer.record_sets.push_back(std::move(answers[return_value_at + 1 + i]));
  }
  return answer;
}

CallOutcome ReadOutcome(const ProcedureAnswer& answer, const std::string& asked_name) {
  CallOutcome outcome;
  outcome.return_value = ReturnValueIn(answer.return_value.get(), asked_name);
  if (outcome.return_value != 0) return outcome;
  try {
    for (const QueryResult& rows : answer.record_sets) {
      if (PQnfields(rows.get()) > 0) outcome.record_sets.push_back(ReadRecordSet(rows.get()));
    }
  } catch (const Failure& failure) {
    throw UnreadableOutcome(asked_name, failure);
  }
  return outcome;
}

}  // namespace ferrowind::postgres
