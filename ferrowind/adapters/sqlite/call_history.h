#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/row_recorder.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {

/// A call that returned 0.
struct RecordedCall {
  const sql_script::ProcedureDefinition& procedure;
  /// A value for each input of `procedure`, by position, of the declared type or empty.
  const std::vector<platform::Value>& inputs;
  /// The calendar that the call was for; empty when it was for none.
  platform::Value currency;
  platform::Value year;
  std::int64_t rows_changed = 0;
};

/// Adds `call` to the history of `database` with the rows that it changed, in the transaction that is open:
/// when, the operating system's user, the values of the inputs, how many rows it changed, and a hash that
/// chains it to the entry before (adapters/chain).
void AddToHistory(const DatabaseHandle& database, const RecordedCall& call,
                  const std::vector<ReplacedRow>& rows);

}  // namespace ferrowind::sqlite
