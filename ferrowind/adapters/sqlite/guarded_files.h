#pragma once

#include <memory>

namespace ferrowind::sqlite {

/// SQLite's files (its default at the time of the construction) with a guard in front: what `DangerBeside`
/// names is neither opened nor read, and a journal that SQLite did not make itself just now is as good as an
/// error. The guard stands where SQLite opens the files, and looks before and behind that, so that nothing
/// that is put there between a look and the opening is used. Other users of SQLite in the process are not
/// concerned: not even another copy of this adapter, whose guards have names of their own and which may be
/// unloaded.
///
/// Must outlive the databases that are opened with it.
class GuardedFiles {
 public:
  GuardedFiles();
  GuardedFiles(GuardedFiles&&) noexcept;
  ~GuardedFiles();

  /// What SQLite knows the files by, to open a database.
  [[nodiscard]] const char* Name() const;

 private:
  struct Guard;
  std::unique_ptr<Guard> guard_;
};

}  // namespace ferrowind::sqlite
