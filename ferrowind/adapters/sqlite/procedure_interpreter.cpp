#include "ferrowind/adapters/sqlite/procedure_interpreter.h"

#include <cstddef>
#include <utility>

#include "ferrowind/adapters/sqlite/result_reader.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Failure;
using platform::FoldCase;
using platform::Value;

enum class ResultKind { kNone, kVariables, kReturnValue, kRecordSet };

Failure Malformed(const std::string& what) { return {platform::failure_number::kInvalidArgument, what}; }

ResultKind KindOfResult(const Statement& statement) {
  const int count = statement.ColumnCount();
  if (count == 0) return ResultKind::kNone;
  int variables = 0;
  bool has_return = false;
  for (int column = 0; column < count; ++column) {
    const std::string_view name = statement.ColumnName(column);
    if (name.substr(0, 1) == "@") ++variables;
    if (platform::CompareIgnoringCase(name, "@return") == 0) has_return = true;
  }
  if (variables == 0) return ResultKind::kRecordSet;
  if (has_return && count == 1) return ResultKind::kReturnValue;
  if (has_return) throw Malformed("the column @return stands alone");
  if (variables != count) throw Malformed("a statement that sets variables has no other columns");
  return ResultKind::kVariables;
}

}  // namespace

ProcedureInterpreter::ProcedureInterpreter(const DatabaseHandle& database,
                                           const sql_script::ProcedureDefinition& procedure,
                                           const std::vector<Value>& inputs, const StatementLimit& limit)
    : database_(database), limit_(limit), memory_(database), procedure_(procedure) {
  for (const auto& parameter : procedure.parameters) {
    if (parameter.direction != platform::ParameterDirection::kInput) continue;
    variables_[FoldCase(parameter.name.substr(1))] =
        inputs.at(static_cast<std::size_t>(parameter.position) - 1);
  }
}

platform::CallOutcome ProcedureInterpreter::Run() {
  std::size_t line = 1;
  try {
    for (const auto& statement : sql_script::SplitStatements(procedure_.body)) {
      line = statement.line;
      // Short ones end before anything looks at the time within them.
      limit_.RequireTime();
      if (const auto return_value = RunStatement(statement.text)) {
        outcome_.return_value = *return_value;
        break;
      }
    }
  } catch (const Failure& failure) {
    throw Failure(failure.Number(), "The procedure " + procedure_.name + " failed in line " +
                                        std::to_string(line) + " of its body: " + failure.Description());
  }
  if (outcome_.return_value != 0) outcome_.record_sets.clear();
  return std::move(outcome_);
}

Value ProcedureInterpreter::Variable(std::string_view name) const {
  const auto found = variables_.find(FoldCase(name));
  return found == variables_.end() ? Value() : found->second;
}

std::optional<std::int32_t> ProcedureInterpreter::RunStatement(std::string_view text) {
  Statement statement(database_, text);
  BindVariables(statement);
  switch (KindOfResult(statement)) {
    case ResultKind::kNone:
      while (statement.Step()) continue;
      return std::nullopt;
    case ResultKind::kVariables:
      AssignVariables(statement);
      return std::nullopt;
    case ResultKind::kReturnValue:
      return ReadReturnValue(statement);
    case ResultKind::kRecordSet:
      outcome_.record_sets.push_back(ReadRecordSet(statement, memory_));
      return std::nullopt;
  }
  return std::nullopt;
}

void ProcedureInterpreter::BindVariables(Statement& statement) const {
  const int count = sqlite3_bind_parameter_count(statement.Get());
  for (int index = 1; index <= count; ++index) {
    const char* const name = sqlite3_bind_parameter_name(statement.Get(), index);
    if (name == nullptr || name[0] != ':') throw Malformed("a variable is written as : and its name");
    const auto found = variables_.find(FoldCase(name + 1));
    if (found == variables_.end()) throw Malformed("nothing has set the variable " + std::string(name));
    statement.Bind(index, found->second);
  }
}

void ProcedureInterpreter::AssignVariables(Statement& statement) {
  const ResultReader reader(statement);
  std::vector<Value> cells(static_cast<std::size_t>(statement.ColumnCount()));
  if (statement.Step()) {
    for (std::size_t column = 0; column < cells.size(); ++column) {
      cells[column] = reader.Cell(static_cast<int>(column));
      memory_.Take(BytesOf(cells[column]));
    }
    if (statement.Step()) throw Malformed("a statement that sets variables has one row at most");
  }
  // Only now, since the statement uses the variables as they were.
  for (std::size_t column = 0; column < cells.size(); ++column) {
    variables_[FoldCase(statement.ColumnName(static_cast<int>(column)).substr(1))] = std::move(cells[column]);
  }
}

std::optional<std::int32_t> ProcedureInterpreter::ReadReturnValue(Statement& statement) {
  if (!statement.Step()) return std::nullopt;
  const Value value = ResultReader(statement).Cell(0);
  if (const auto* const number = value.If<std::int32_t>()) return *number;
  if (const auto* const number = value.If<std::int16_t>()) return *number;
  throw Malformed("a return value is a whole number of 32 bits");
}

}  // namespace ferrowind::sqlite
