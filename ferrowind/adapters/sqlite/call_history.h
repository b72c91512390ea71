#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {

/// Adds a call of `procedure` that returned 0 to the history of `database`, in the transaction that is open:
/// when, the operating system's user, the values of the inputs, and how many rows it changed. A call of a
/// procedure with parameters @ID1 and @Year1 is one for that calendar. A database of a version that had no
/// history is a failure that says how to upgrade it.
///
/// `inputs` holds a value for each input of `procedure`, by position, of the declared type or empty.
void AddToHistory(const DatabaseHandle& database, const sql_script::ProcedureDefinition& procedure,
                  const std::vector<platform::Value>& inputs, std::int64_t rows_changed);

}  // namespace ferrowind::sqlite
