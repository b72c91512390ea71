#include "ferrowind/adapters/sqlite/call_history.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
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
                     " RowsChanged, Moment) VALUES (?1, ?2, ?3, ?4, ?5, 0, ?6, ?7)");
  } catch (const platform::Failure&) {
    // A database of another version has none, or another one.
    content::RequireSchemaVersion("The database " + database.Path(), SchemaVersionOf(database),
                                  DeliveredUpgrades().back().version);
    throw;
  }
}

/// In UTC, YYYY-MM-DDTHH:MM:SS.sssZ.
std::string Now() {
  using namespace std::chrono;
  const auto now = floor<milliseconds>(system_clock::now());
  const auto midnight = floor<days>(now);
  const year_month_day date(midnight);
  const hh_mm_ss time(now - midnight);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()),
                static_cast<int>(time.subseconds().count()));
  return text.data();
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
  const Value moment(Now());
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
  entry.Bind(7, moment);
  entry.Step();
}

}  // namespace ferrowind::sqlite
