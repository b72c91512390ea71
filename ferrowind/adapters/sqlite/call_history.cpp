#include "ferrowind/adapters/sqlite/call_history.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/parameters_json.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/system_user.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Value;
using sql_script::ProcedureDefinition;

Statement PrepareEntry(const DatabaseHandle& database) {
  try {
    return Statement(database,
                     "INSERT INTO CldHistory (UserName, ProcedureName, ID1, Year1, Parameters, ReturnValue,"
                     " RowsChanged) VALUES (?1, ?2, ?3, ?4, ?5, 0, ?6)");
  } catch (const platform::Failure&) {
    // A database of another version has none, or another one.
    content::RequireSchemaVersion("The database " + database.Path(), SchemaVersionOf(database),
                                  DeliveredUpgrades().back().version);
    throw;
  }
}

/// Empty when the procedure has no such parameter.
Value InputNamed(std::string_view name, const ProcedureDefinition& procedure,
                 const std::vector<Value>& inputs) {
  for (const auto& parameter : procedure.parameters) {
    if (parameter.direction == platform::ParameterDirection::kInput &&
        platform::CompareIgnoringCase(parameter.name, name) == 0) {
      return inputs.at(static_cast<std::size_t>(parameter.position) - 1);
    }
  }
  return {};
}

}  // namespace

void AddToHistory(const DatabaseHandle& database, const ProcedureDefinition& procedure,
                  const std::vector<Value>& inputs, std::int64_t rows_changed) {
  const Value user(SystemUserName());
  const Value name(procedure.name);
  const Value currency = InputNamed("@ID1", procedure, inputs);
  const Value year = InputNamed("@Year1", procedure, inputs);
  const Value parameters(ParametersAsJson(procedure.parameters, inputs));
  Statement entry = PrepareEntry(database);
  entry.Bind(1, user);
  entry.Bind(2, name);
  entry.Bind(3, currency);
  entry.Bind(4, year);
  entry.Bind(5, parameters);
  entry.Bind(6, rows_changed);
  entry.Step();
}

}  // namespace ferrowind::sqlite
