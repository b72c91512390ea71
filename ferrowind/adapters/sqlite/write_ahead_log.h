#pragma once

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// Has the file of `database` keep a log, by which readers and a writer work side by side; the file keeps
/// this for good. A new file gets it, and one that another tool has taken off it. At no moment there is a
/// journal beside the file: whoever else came then would refuse it, and for ever if this process was killed.
/// A failure when the file system does not allow a log, or others use the file. Without a file nothing is
/// done. No transaction is open.
void RequireWriteAheadLog(DatabaseHandle& database);

}  // namespace ferrowind::sqlite
