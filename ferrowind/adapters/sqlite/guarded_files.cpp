#include "ferrowind/adapters/sqlite/guarded_files.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/files_beside.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {

/// The files of `system` with a guard in front. All but two functions are the system's own, which find in a
/// copy what they find in the original, and so are those of the open files, but for one of a database's.
struct GuardedFiles::Guard {
  explicit Guard(sqlite3_vfs& guarded_system);
  ~Guard();
  Guard(const Guard&) = delete;
  Guard& operator=(const Guard&) = delete;

  static int Open(sqlite3_vfs* files, const char* name, sqlite3_file* file, int flags,
                  int* flags_out) noexcept;
  static int Access(sqlite3_vfs* files, const char* name, int flags, int* answer) noexcept;

  /// First, so that SQLite's pointer to it is one to the guard.
  sqlite3_vfs files;
  sqlite3_vfs& system;
  std::string name;
};

namespace {

/// An open database file with a guard in front of the shared memory beside it. Lies behind what the system
/// keeps of the file.
struct GuardedDatabase {
  /// First, so that SQLite's pointer to them is one to this.
  sqlite3_io_methods methods;
  const sqlite3_io_methods* system;
  /// SQLite's own, which lives as long as the file is open.
  const char* path;
};

/// The first version of a file's functions that has those of shared memory.
constexpr int kVersionWithSharedMemory = 2;

/// The bytes that `system` takes for a file, and what is left out so that something else can lie behind them.
std::size_t RoomOfFile(const sqlite3_vfs& system) {
  constexpr std::size_t kStep = alignof(GuardedDatabase);
  return (static_cast<std::size_t>(system.szOsFile) + kStep - 1) / kStep * kStep;
}

int Refuse(sqlite3_file* file) {
  file->pMethods = nullptr;
  return SQLITE_CANTOPEN;
}

/// Looks again when the log is open, before anything is read from it or written to it. When nothing has the
/// name any more, what was opened was somebody's who put it there for that moment only: SQLite removes these
/// files while nobody opens them.
int OpenLog(sqlite3_vfs* system, const char* name, sqlite3_file* file, int flags, int* flags_out) {
  std::string database = name;
  database.resize(database.size() - kLogSuffix.size());
  const FilesBeside beside(std::move(database));
  if (beside.Danger()) return Refuse(file);
  const int code = system->xOpen(system, name, file, flags, flags_out);
  if (code != SQLITE_OK || beside.HasHarmless(kLogSuffix)) return code;
  file->pMethods->xClose(file);
  return Refuse(file);
}

/// SQLite opens the shared memory with the first of its pages, page 0.
int MapSharedMemory(sqlite3_file* file, int page, int size, int may_extend, void volatile** memory) noexcept {
  try {
    const auto& guarded = *reinterpret_cast<const GuardedDatabase*>(file->pMethods);
    const auto map = [&] { return guarded.system->xShmMap(file, page, size, may_extend, memory); };
    if (page != 0) return map();
    const FilesBeside beside(guarded.path);
    if (beside.DangerOf(kSharedMemorySuffix)) return SQLITE_CANTOPEN;
    const int code = map();
    const bool is_mapped = code == SQLITE_OK || code == SQLITE_READONLY;
    if (!is_mapped || beside.HasHarmless(kSharedMemorySuffix)) return code;
    guarded.system->xShmUnmap(file, 0);
    *memory = nullptr;
    return SQLITE_CANTOPEN;
  } catch (const std::exception&) {
    return SQLITE_NOMEM;
  }
}

int OpenDatabase(sqlite3_vfs& system, const char* name, sqlite3_file* file, int flags, int* flags_out) {
  const int code = system.xOpen(&system, name, file, flags, flags_out);
  if (code != SQLITE_OK || file->pMethods->iVersion < kVersionWithSharedMemory) return code;
  void* const behind = reinterpret_cast<std::byte*>(file) + RoomOfFile(system);
  auto* const guarded = new (behind) GuardedDatabase{*file->pMethods, file->pMethods, name};
  guarded->methods.xShmMap = MapSharedMemory;
  file->pMethods = &guarded->methods;
  return code;
}

sqlite3_vfs& FilesOfSystem() {
  sqlite3_vfs* const system = sqlite3_vfs_find(nullptr);
  if (system == nullptr) throw platform::Failure(SQLITE_CANTOPEN, "SQLite knows no files of this system");
  return *system;
}

/// One that no other object of the process has now, whichever module's it is.
std::string NameOfItsOwn(const void* object) {
  return "ferrowind-guarded-" + std::to_string(reinterpret_cast<std::uintptr_t>(object));
}

}  // namespace

GuardedFiles::Guard::Guard(sqlite3_vfs& guarded_system)
    : files(guarded_system), system(guarded_system), name(NameOfItsOwn(this)) {
  files.pNext = nullptr;
  files.zName = name.c_str();
  files.szOsFile = static_cast<int>(RoomOfFile(system) + sizeof(GuardedDatabase));
  files.xOpen = Open;
  files.xAccess = Access;
  if (sqlite3_vfs_register(&files, 0) != SQLITE_OK) {
    throw platform::Failure(SQLITE_NOMEM, "There is not enough memory to guard the files of a database");
  }
}

GuardedFiles::Guard::~Guard() { sqlite3_vfs_unregister(&files); }

int GuardedFiles::Guard::Open(sqlite3_vfs* files, const char* name, sqlite3_file* file, int flags,
                              int* flags_out) noexcept {
  try {
    sqlite3_vfs* const system = &reinterpret_cast<Guard*>(files)->system;
    if ((flags & SQLITE_OPEN_MAIN_DB) != 0) return OpenDatabase(*system, name, file, flags, flags_out);
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
int GuardedFiles::Guard::Access(sqlite3_vfs* files, const char* name, int flags, int* answer) noexcept {
  try {
    if (std::string_view(name).ends_with(kJournalSuffix) && IsAnythingAt(name)) return SQLITE_CANTOPEN;
    sqlite3_vfs& system = reinterpret_cast<Guard*>(files)->system;
    return system.xAccess(&system, name, flags, answer);
  } catch (const std::exception&) {
    return SQLITE_NOMEM;
  }
}

GuardedFiles::GuardedFiles() : guard_(std::make_unique<Guard>(FilesOfSystem())) {}
GuardedFiles::GuardedFiles(GuardedFiles&&) noexcept = default;
GuardedFiles::~GuardedFiles() = default;

const char* GuardedFiles::Name() const { return guard_->name.c_str(); }

}  // namespace ferrowind::sqlite
