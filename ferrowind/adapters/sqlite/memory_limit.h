#pragma once

namespace ferrowind::sqlite {

/// Lets SQLite take no more than a gigabyte of memory, for all databases of this process together; what would
/// need more fails. Only for a program that is alone in its process: a host that uses SQLite for its own sets
/// its own limit, by sqlite3_hard_heap_limit64().
void LimitMemoryOfProcess() noexcept;

}  // namespace ferrowind::sqlite
