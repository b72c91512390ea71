#include "ferrowind/adapters/sqlite/connection_guard.h"

namespace ferrowind::sqlite {

int GuardConnection(sqlite3* /*database*/) noexcept { return SQLITE_OK; }

}  // namespace ferrowind::sqlite
