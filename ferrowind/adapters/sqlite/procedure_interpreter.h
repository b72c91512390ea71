#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sql_script/statement_splitter.h"
#include "ferrowind/adapters/sqlite/call_memory.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/statement_limit.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::sqlite {

/// Runs the body of a stored procedure once.
///
/// The statements run in order. A parameter `@ID1` is the variable `:ID1`, which a statement uses like any
/// value; names are found without regard to letter case. What a statement returns decides what becomes of it:
///  - columns named "@x", "@y": at most one row, whose cells become the variables `:x`, `:y`; empty ones
///  without a row;
///  - the single column "@return": a row ends the call with that value, no row goes on;
///  - any other columns: a record set of the outcome.
/// A body that runs to its end returns 0. Anything else in a body (a variable that nothing has set, "@"
/// columns mixed with others, "@return" beside others, several rows for variables, a return value that is no
/// int32, a statement that SQLite refuses) is a failure that names the procedure and the line of the body.
class ProcedureInterpreter {
 public:
  /// `inputs` holds a value for each input of `procedure`, by position. `limit` is that of the call's time.
  /// All arguments must outlive the interpreter.
  ProcedureInterpreter(const DatabaseHandle& database, const sql_script::ProcedureDefinition& procedure,
                       const std::vector<platform::Value>& inputs, const StatementLimit& limit);

  /// Called once. The transaction around it is the caller's.
  [[nodiscard]] platform::CallOutcome Run();
  /// What the variable of that name, in any letter case and without its sign, holds now; empty when nothing
  /// has set it.
  [[nodiscard]] platform::Value Variable(std::string_view name) const;

 private:
  /// The return value, when the statement ends the call.
  std::optional<std::int32_t> RunStatement(std::string_view text);
  void BindVariables(Statement& statement) const;
  void AssignVariables(Statement& statement);
  static std::optional<std::int32_t> ReadReturnValue(Statement& statement);

  const DatabaseHandle& database_;
  const StatementLimit& limit_;
  CallMemory memory_;
  const sql_script::ProcedureDefinition& procedure_;
  /// Under their folded names without the leading sign.
  std::map<std::string, platform::Value> variables_;
  platform::CallOutcome outcome_;
};

}  // namespace ferrowind::sqlite
