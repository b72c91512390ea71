#include "ferrowind/adapters/sqlite/guarded_files.h"

namespace ferrowind::sqlite {

/// SQLite's own, with nothing in front.
const char* GuardedFiles() { return nullptr; }

}  // namespace ferrowind::sqlite
