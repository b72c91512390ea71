#include "ferrowind/adapters/sqlite/memory_limit.h"

#include <sqlite3.h>

namespace ferrowind::sqlite {

void LimitMemoryOfProcess() noexcept {
  constexpr sqlite3_int64 kMostBytes = 1024LL * 1024 * 1024;
  sqlite3_hard_heap_limit64(kMostBytes);
}

}  // namespace ferrowind::sqlite
