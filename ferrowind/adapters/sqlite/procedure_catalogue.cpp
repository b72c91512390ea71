#include "ferrowind/adapters/sqlite/procedure_catalogue.h"

#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::ParameterDescription;
using platform::ParameterDirection;
using sql_script::ProcedureDefinition;

// The whole of a procedure in one statement, because every call asks for it.
constexpr std::string_view kLookup =
    "SELECT r.Name, r.Writes, r.Body, p.Position, p.Name, p.Type"
    " FROM ProcedureCatalogue r JOIN ProcedureParameter p ON p.ProcedureName = r.Name"
    " WHERE r.Name = ?1 ORDER BY p.Position";

/// A sound database without these tables is a database of something else, or an empty file.
platform::Failure NoCalendarDatabase(const DatabaseHandle& database, const std::string& why) {
  return {SQLITE_ERROR, "The file " + database.Path() + " is not a calendar database: " + why};
}

Statement PrepareLookup(const DatabaseHandle& database) {
  try {
    return Statement(database, kLookup);
  } catch (const platform::Failure& failure) {
    if (failure.Number() != SQLITE_ERROR) throw;
    throw NoCalendarDatabase(database, failure.Description());
  }
}

}  // namespace

ProcedureCatalogue::ProcedureCatalogue(const DatabaseHandle& database)
    : database_(database), lookup_(PrepareLookup(database)) {}

std::optional<ProcedureDefinition> ProcedureCatalogue::Find(const std::string& name) {
  const platform::Value wanted(name);
  lookup_.Reset();
  lookup_.Bind(1, wanted);
  std::optional<ProcedureDefinition> procedure;
  while (lookup_.Step()) {
    if (!procedure) {
      procedure.emplace();
      procedure->name = lookup_.Text(0);
      procedure->writes = lookup_.Integer(1) != 0;
      procedure->body = lookup_.Text(2);
    }
    const auto position = static_cast<std::int32_t>(lookup_.Integer(3));
    procedure->parameters.push_back(
        {std::string(lookup_.Text(4)), position, sql_script::ParameterTypeNamed(lookup_.Text(5)),
         position == 0 ? ParameterDirection::kReturnValue : ParameterDirection::kInput});
  }
  lookup_.Reset();
  return procedure;
}

std::vector<std::string> ProcedureCatalogue::Names() const {
  Statement list(database_, "SELECT Name FROM ProcedureCatalogue ORDER BY Name");
  std::vector<std::string> names;
  while (list.Step()) names.emplace_back(list.Text(0));
  return names;
}

void RequireCatalogue(const DatabaseHandle& database) {
  Statement count(database,
                  "SELECT count(*) FROM sqlite_schema"
                  " WHERE lower(name) IN ('procedurecatalogue', 'procedureparameter')");
  if (!count.Step() || count.Integer(0) != 2) throw NoCalendarDatabase(database, "it holds no procedures");
}

void AddToCatalogue(const DatabaseHandle& database, const ProcedureDefinition& procedure) {
  const platform::Value name(procedure.name);
  const platform::Value body(procedure.body);
  Statement add(database, "INSERT INTO ProcedureCatalogue (Name, Writes, Body) VALUES (?1, ?2, ?3)");
  add.Bind(1, name);
  add.Bind(2, procedure.writes);
  add.Bind(3, body);
  add.Step();
  for (const ParameterDescription& parameter : procedure.parameters) {
    const platform::Value parameter_name(parameter.name);
    const platform::Value type(NameOf(parameter.type));
    const platform::Value direction(parameter.direction == ParameterDirection::kInput ? "in" : "return");
    Statement add_parameter(database,
                            "INSERT INTO ProcedureParameter (ProcedureName, Position, Name, Type, Direction)"
                            " VALUES (?1, ?2, ?3, ?4, ?5)");
    add_parameter.Bind(1, name);
    add_parameter.Bind(2, parameter.position);
    add_parameter.Bind(3, parameter_name);
    add_parameter.Bind(4, type);
    add_parameter.Bind(5, direction);
    add_parameter.Step();
  }
}

void RemoveFromCatalogue(const DatabaseHandle& database, const std::string& name) {
  const platform::Value removed(name);
  for (const std::string_view sql : {"DELETE FROM ProcedureParameter WHERE ProcedureName = ?1",
                                     "DELETE FROM ProcedureCatalogue WHERE Name = ?1"}) {
    Statement remove(database, sql);
    remove.Bind(1, removed);
    remove.Step();
  }
}

}  // namespace ferrowind::sqlite
