#include "ferrowind/adapters/sqlite/schema_guard.h"

#include "ferrowind/adapters/sqlite/procedure_catalogue.h"

namespace ferrowind::sqlite {

SchemaGuard::SchemaGuard(const DatabaseHandle& database) : database_(database), ask_cookie_(database, "") {}

void SchemaGuard::Look() {}

void RequireCalendarDatabase(const DatabaseHandle& database) {
  const ProcedureCatalogue must_be_there(database);
}

}  // namespace ferrowind::sqlite
