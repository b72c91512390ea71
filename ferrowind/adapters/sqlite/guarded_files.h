#pragma once

namespace ferrowind::sqlite {

/// The name under which SQLite knows its files (its default at the time of the call) with a guard in front:
/// what `DangerBeside` names is neither opened nor read, and a journal that SQLite did not make itself just
/// now is as good as an error. The guard stands where SQLite uses the files, so nothing can be put there
/// between a look and the use. Other users of SQLite in the process are not concerned.
[[nodiscard]] const char* GuardedFiles();

}  // namespace ferrowind::sqlite
