#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/row_recorder.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {

/// A call that returned 0.
struct HistoryEntry {
  const sql_script::ProcedureDefinition& procedure;
  /// A value for each input of `procedure`, by position, of the declared type or empty.
  const std::vector<platform::Value>& inputs;
  /// The calendar that the call was for; empty when it was for none.
  platform::Value currency;
  platform::Value year;
  std::int64_t rows_changed = 0;
};

/// Adds `call` to the history of `database`, in the transaction that is open: when, the operating system's
/// user, the values of the inputs, and how many rows it changed. Gives the number of the entry.
std::int64_t AddToHistory(const DatabaseHandle& database, const HistoryEntry& call);

/// Adds the rows that the call of the entry `entry` replaced.
void AddReplacedRows(const DatabaseHandle& database, std::int64_t entry,
                     const std::vector<ReplacedRow>& rows);

}  // namespace ferrowind::sqlite
