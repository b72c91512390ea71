#include "tests/contract/database/planting_files.h"

#include <stdexcept>

#include <sqlite3.h>
#include <unistd.h>

namespace ferrowind::contract {
namespace {

std::string planted_file;
std::string planted_suffix;
std::string database;
int count = 0;
sqlite3_vfs vfs;

/// The functions of the database file, of which one is replaced, and the original ones.
sqlite3_io_methods methods;
const sqlite3_io_methods* real_methods = nullptr;

sqlite3_vfs* RealVfs() {
  static sqlite3_vfs* const real = sqlite3_vfs_find("unix");
  return real;
}

/// Runs `open` while the file stands beside the database.
template <typename Opening>
int WhilePlanted(const std::string& suffix, const Opening& open) {
  const std::string place = database + suffix;
  const bool is_planted = suffix == planted_suffix && link(planted_file.c_str(), place.c_str()) == 0;
  const int code = open();
  if (is_planted) {
    ++count;
    unlink(place.c_str());
  }
  return code;
}

int ShmMap(sqlite3_file* file, int page, int size, int may_extend, void volatile** memory) {
  return WhilePlanted("-shm", [&] { return real_methods->xShmMap(file, page, size, may_extend, memory); });
}

int Open(sqlite3_vfs* /*files*/, const char* name, sqlite3_file* file, int flags, int* out_flags) {
  const auto open = [&] { return RealVfs()->xOpen(RealVfs(), name, file, flags, out_flags); };
  if ((flags & SQLITE_OPEN_WAL) != 0) return WhilePlanted("-wal", open);
  const int code = open();
  if ((flags & SQLITE_OPEN_MAIN_DB) == 0 || code != SQLITE_OK) return code;
  database = name;
  real_methods = file->pMethods;
  methods = *real_methods;
  methods.xShmMap = ShmMap;
  file->pMethods = &methods;
  return code;
}

}  // namespace

PlantingFiles::PlantingFiles(const std::string& planted, const std::string& suffix) {
  planted_file = planted;
  planted_suffix = suffix;
  count = 0;
  vfs = *RealVfs();
  vfs.zName = "planting files";
  vfs.pNext = nullptr;
  vfs.xOpen = Open;
  if (sqlite3_vfs_register(&vfs, 1) != SQLITE_OK) throw std::runtime_error("no files can be planted");
}

PlantingFiles::~PlantingFiles() {
  sqlite3_vfs_unregister(&vfs);
  sqlite3_vfs_register(RealVfs(), 1);
}

int PlantingFiles::Count() { return count; }

}  // namespace ferrowind::contract
