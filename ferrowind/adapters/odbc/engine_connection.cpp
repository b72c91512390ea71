#include "ferrowind/adapters/odbc/engine_connection.h"

#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <system_error>

#include "ferrowind/adapters/odbc/signature_query.h"
#include "ferrowind/adapters/postgres_calls/call_script.h"
#include "ferrowind/adapters/postgres_calls/call_trouble.h"
#include "ferrowind/adapters/postgres_calls/sql_state.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::odbc {
namespace {

using platform::Failure;
using postgres::CallScript;

/// All of a call but its inputs, in one round trip to the server. Where one of the statements fails, the
/// server runs none of those behind it.
std::string Transaction(const CallScript& script, std::size_t record_sets) {
  std::string statements = "BEGIN; " + script.Block() + "; " + CallScript::ReadReturnValue();
  for (std::size_t i = 0; i < record_sets; ++i) statements += "; " + CallScript::FetchRecordSet(i);
  return statements + "; COMMIT";
}

std::int32_t ReturnValueIn(const platform::RecordSet& rows, const std::string& procedure) {
  const std::string text =
      rows.Eof() ? std::string() : platform::ToTextOrEmpty(rows.Cell(rows.CurrentBookmark(), 0));
  std::int32_t value = 0;
  const char* const end = text.data() + text.size();
  const auto [place, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || place != end) throw postgres::CallWithoutReturnValue(procedure);
  return value;
}

/// The first answer is the return value, and those behind it the record sets that were opened.
platform::CallOutcome OutcomeIn(const std::vector<Answer>& answers, const std::string& procedure) {
  if (answers.empty()) throw postgres::CallWithoutReturnValue(procedure);
  platform::CallOutcome outcome;
  outcome.return_value = ReturnValueIn(*RowsOf(answers.front()), procedure);
  if (outcome.return_value != 0) return outcome;
  try {
    for (std::size_t i = 1; i < answers.size(); ++i) outcome.record_sets.push_back(RowsOf(answers[i]));
  } catch (const Failure& failure) {
    throw postgres::UnreadableOutcome(procedure, failure);
  }
  return outcome;
}

}  // namespace

std::vector<platform::ParameterDescription> EngineConnection::DescribeProcedure(
    const std::string& procedure) {
  return platform::WithFailuresOnly([&] {
    signature_ = ReadSignature(link_, procedure);
    asked_name_ = procedure;
    return signature_->parameters;
  });
}

platform::CallOutcome EngineConnection::Call(const std::string& procedure,
                                             const std::vector<platform::Value>& inputs) {
  return platform::WithFailuresOnly([&] {
    if (!signature_ || asked_name_ != procedure) static_cast<void>(DescribeProcedure(procedure));
    postgres::RefuseWrongInputs(*signature_, procedure, inputs);
    return OutcomeIn(Run(inputs), procedure);
  });
}

std::vector<Answer> EngineConnection::Run(const std::vector<platform::Value>& inputs) {
  const CallScript script(*signature_, inputs, postgres::LockTimeout(link_.CallTimeout()),
                          CallScript::Form::kQuestionMarks);
  const auto began = std::chrono::steady_clock::now();
  try {
    static_cast<void>(link_.Run(script.SetInputs(), script.InputTexts()));
    return link_.Run(Transaction(script, signature_->RecordSetCount()));
  } catch (const Failure& failure) {
    if (!link_.IsAlive()) throw postgres::InterruptedCall(asked_name_, failure);
    link_.Undo();
    // An administrator may stop it as well, and the server's words for it are in any language.
    const bool is_late = std::chrono::steady_clock::now() - began >= link_.StatementTimeout();
    if (is_late && postgres::IsOfState(failure, "57014")) throw postgres::StoppedCall(asked_name_, failure);
    throw postgres::FailedCall(asked_name_, failure);
  }
}

}  // namespace ferrowind::odbc
