#include "ferrowind/adapters/sqlite/guarded_files.h"

#include <cstddef>
#include <exception>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/files_beside.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

/// The files of `system` with a guard in front. All but two functions are the system's own, which find in a
/// copy what they find in the original.
struct Guard {
  Guard(sqlite3_vfs& guarded_system, std::string guard_name)
      : files(guarded_system), system(guarded_system), name(std::move(guard_name)) {}

  /// First, so that SQLite's pointer to it is one to the guard.
  sqlite3_vfs files;
  sqlite3_vfs& system;
  std::string name;
};

sqlite3_vfs* SystemBehind(sqlite3_vfs* files) { return &reinterpret_cast<Guard*>(files)->system; }

bool IsDangerBesideLog(std::string_view log) {
  log.remove_suffix(kLogSuffix.size());
  return DangerBeside(std::string(log)).has_value();
}

int Refuse(sqlite3_file* file) {
  file->pMethods = nullptr;
  return SQLITE_CANTOPEN;
}

/// Looks again when the log is open, before anything is written to it.
int OpenLog(sqlite3_vfs* system, const char* name, sqlite3_file* file, int flags, int* flags_out) {
  if (IsDangerBesideLog(name)) return Refuse(file);
  const int code = system->xOpen(system, name, file, flags, flags_out);
  if (code != SQLITE_OK || !IsDangerBesideLog(name)) return code;
  file->pMethods->xClose(file);
  return Refuse(file);
}

int Open(sqlite3_vfs* files, const char* name, sqlite3_file* file, int flags, int* flags_out) noexcept {
  try {
    sqlite3_vfs* const system = SystemBehind(files);
    if ((flags & SQLITE_OPEN_WAL) != 0) return OpenLog(system, name, file, flags, flags_out);
    if ((flags & (SQLITE_OPEN_MAIN_JOURNAL | SQLITE_OPEN_SUPER_JOURNAL)) != 0) {
      if ((flags & SQLITE_OPEN_CREATE) == 0) return Refuse(file);
      flags |= SQLITE_OPEN_EXCLUSIVE;
    }
    return system->xOpen(system, name, file, flags, flags_out);
  } catch (const std::exception&) {
    Refuse(file);
    return SQLITE_NOMEM;
  }
}

/// SQLite asks whether there is a journal before it first reads a database.
int Access(sqlite3_vfs* files, const char* name, int flags, int* answer) noexcept {
  try {
    if (std::string_view(name).ends_with(kJournalSuffix) && IsAnythingAt(name)) return SQLITE_CANTOPEN;
    sqlite3_vfs* const system = SystemBehind(files);
    return system->xAccess(system, name, flags, answer);
  } catch (const std::exception&) {
    return SQLITE_NOMEM;
  }
}

std::unique_ptr<Guard> MakeGuard(sqlite3_vfs& system, std::size_t number) {
  auto guard = std::make_unique<Guard>(system, "ferrowind-guarded-" + std::to_string(number));
  guard->files.pNext = nullptr;
  guard->files.zName = guard->name.c_str();
  guard->files.xOpen = Open;
  guard->files.xAccess = Access;
  if (sqlite3_vfs_register(&guard->files, 0) != SQLITE_OK) {
    throw platform::Failure(SQLITE_NOMEM, "There is not enough memory to guard the files of a database");
  }
  return guard;
}

}  // namespace

const char* GuardedFiles() {
  static std::mutex one_at_a_time;
  // For as long as the process, as SQLite knows them for as long.
  static auto& guards = *new std::map<sqlite3_vfs*, std::unique_ptr<Guard>>();
  const std::scoped_lock lock(one_at_a_time);
  sqlite3_vfs* const system = sqlite3_vfs_find(nullptr);
  if (system == nullptr) throw platform::Failure(SQLITE_CANTOPEN, "SQLite knows no files of this system");
  auto& guard = guards[system];
  if (!guard) guard = MakeGuard(*system, guards.size());
  return guard->name.c_str();
}

}  // namespace ferrowind::sqlite
