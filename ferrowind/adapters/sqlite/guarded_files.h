#pragma once

namespace ferrowind::sqlite {

/// The name under which SQLite knows its files (its default at the time of the call) with a guard in front:
/// what `DangerBeside` names is neither opened nor read, and a journal that SQLite did not make itself just
/// now is as good as an error. The guard stands where SQLite opens the files, and looks before and behind
/// that, so that nothing that is put there between a look and the opening is used. Other users of SQLite in
/// the process are not concerned.
[[nodiscard]] const char* GuardedFiles();

}  // namespace ferrowind::sqlite
