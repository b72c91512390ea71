#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/statement.h"

namespace ferrowind::sqlite {

/// The stored procedures that a database holds.
class ProcedureCatalogue {
 public:
  /// Looks into the file. A file that is no database, is damaged or has no catalogue is a failure that says
  /// so. `database` must outlive the catalogue.
  explicit ProcedureCatalogue(const DatabaseHandle& database);

  /// The procedure of that name, letter case ignored, as the catalogue has it now; nothing when it has none.
  [[nodiscard]] std::optional<sql_script::ProcedureDefinition> Find(const std::string& name);

  /// The names of all procedures, ordered.
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  const DatabaseHandle& database_;
  Statement lookup_;
};

/// A failure unless `database` has the names of a catalogue; what stands under them is not looked at.
void RequireCatalogue(const DatabaseHandle& database);

/// Adds `procedure` to the catalogue of `database`, whose tables exist. A name in use is a failure.
void AddToCatalogue(const DatabaseHandle& database, const sql_script::ProcedureDefinition& procedure);

/// Takes the procedure of that name out of the catalogue of `database`, if it is there.
void RemoveFromCatalogue(const DatabaseHandle& database, const std::string& name);

}  // namespace ferrowind::sqlite
