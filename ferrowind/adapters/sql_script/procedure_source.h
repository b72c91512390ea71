#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/database/parameter.h"

namespace ferrowind::sql_script {

/// A stored procedure as a catalogue keeps it.
struct ProcedureDefinition {
  std::string name;
  /// False for a procedure that only reads.
  bool writes = false;
  /// The return value first, then the inputs by position.
  std::vector<platform::ParameterDescription> parameters;
  /// A script of SQL statements.
  std::string body;
};

/// Reads a procedure from its source, a script whose first lines are comments that declare it:
///
///     -- procedure CldGetMain reads
///     -- parameter @ID1 int32
///     -- parameter @Year1 int32
///
/// then the body. The first line says "reads" or "writes"; a parameter line follows for each input, by
/// position, with its type: int16, int32, text or date. A source that does not begin so, two parameters of
/// one name (in any letter case), and a body that does not split into statements or has none, are failures
/// that name the line.
[[nodiscard]] ProcedureDefinition ParseProcedureSource(std::string_view source);

/// The type of that name ("int16", "int32", "text", "date"); another name is a failure that quotes it.
[[nodiscard]] platform::ParameterType ParameterTypeNamed(std::string_view name);

/// What describes the return value of every procedure.
[[nodiscard]] platform::ParameterDescription ReturnValueDescription();

}  // namespace ferrowind::sql_script
