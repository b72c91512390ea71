#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/data/source_values.h"

namespace ferrowind {

/// The result of `ExecProc` when the call failed before the procedure's return value was read.
inline constexpr std::int32_t kCallFailed = -1;

/// Calls a stored procedure of the database that the dictionary object names: the one way to the data.
///
/// `Params` holds one entry per input parameter, named without the leading "@"; null binds none. An entry
/// that names no parameter, or whose value does not fit, is skipped silently. Returns the procedure's return
/// value, or -1 when the call failed; a failure is kept as the pending failure of the thread and not thrown,
/// unless even that fails (pending_failure.h). Only when the procedure returned 0 and produced a record set,
/// `Results` is emptied (or created when null) and receives the record sets under the names "1", "2", ...;
/// they are copies that need no connection any more. Otherwise `Results` stays as it was passed. Every call
/// forgets the pending failure of the one before. Where the procedure refused a text for its length, the
/// thread's state says which (`ModuleState::too_long_text`).
std::int32_t ExecProc(const std::string& ProcName, const SourceValues* Params,
                      std::shared_ptr<SourceValues>& Results);

}  // namespace ferrowind
