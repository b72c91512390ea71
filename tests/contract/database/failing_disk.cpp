#include "tests/contract/database/failing_disk.h"

#include <new>
#include <stdexcept>

#include <sqlite3.h>

namespace ferrowind::contract {
namespace {

bool is_filling = false;
int writes_left = 0;
bool has_failed = false;
/// At one address for good: those who have used it may know it longer than it is registered.
sqlite3_vfs vfs;

sqlite3_vfs* RealVfs() {
  static sqlite3_vfs* const real = sqlite3_vfs_find("unix");
  return real;
}

/// A file whose writes may fail; the real one lies behind it in the same memory.
struct DiskFile {
  sqlite3_file base;
  sqlite3_io_methods methods;
};

sqlite3_file* RealFile(sqlite3_file* file) {
  return reinterpret_cast<sqlite3_file*>(reinterpret_cast<DiskFile*>(file) + 1);
}

bool IsFull() {
  const bool is_full = is_filling && writes_left == 0;
  has_failed = has_failed || is_full;
  return is_full;
}

bool MayWrite() {
  if (IsFull()) return false;
  if (is_filling) --writes_left;
  return true;
}

int Close(sqlite3_file* file) { return RealFile(file)->pMethods->xClose(RealFile(file)); }
int Read(sqlite3_file* file, void* data, int amount, sqlite3_int64 offset) {
  return RealFile(file)->pMethods->xRead(RealFile(file), data, amount, offset);
}
int Write(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
  if (!MayWrite()) return SQLITE_FULL;
  return RealFile(file)->pMethods->xWrite(RealFile(file), data, amount, offset);
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  return RealFile(file)->pMethods->xTruncate(RealFile(file), size);
}
int Sync(sqlite3_file* file, int flags) { return RealFile(file)->pMethods->xSync(RealFile(file), flags); }
int FileSize(sqlite3_file* file, sqlite3_int64* size) {
  return RealFile(file)->pMethods->xFileSize(RealFile(file), size);
}
int Lock(sqlite3_file* file, int kind) { return RealFile(file)->pMethods->xLock(RealFile(file), kind); }
int Unlock(sqlite3_file* file, int kind) { return RealFile(file)->pMethods->xUnlock(RealFile(file), kind); }
int CheckReservedLock(sqlite3_file* file, int* result) {
  return RealFile(file)->pMethods->xCheckReservedLock(RealFile(file), result);
}
int FileControl(sqlite3_file* file, int operation, void* argument) {
  return RealFile(file)->pMethods->xFileControl(RealFile(file), operation, argument);
}
int SectorSize(sqlite3_file* file) { return RealFile(file)->pMethods->xSectorSize(RealFile(file)); }
int DeviceCharacteristics(sqlite3_file* file) {
  return RealFile(file)->pMethods->xDeviceCharacteristics(RealFile(file));
}
int ShmMap(sqlite3_file* file, int page, int size, int may_extend, void volatile** memory) {
  // It says no more than that the file did not become longer.
  if (may_extend != 0 && IsFull()) return SQLITE_IOERR_SHMSIZE;
  return RealFile(file)->pMethods->xShmMap(RealFile(file), page, size, may_extend, memory);
}
int ShmLock(sqlite3_file* file, int offset, int count, int flags) {
  return RealFile(file)->pMethods->xShmLock(RealFile(file), offset, count, flags);
}
void ShmBarrier(sqlite3_file* file) { RealFile(file)->pMethods->xShmBarrier(RealFile(file)); }
int ShmUnmap(sqlite3_file* file, int is_deleting) {
  return RealFile(file)->pMethods->xShmUnmap(RealFile(file), is_deleting);
}

int Open(sqlite3_vfs* /*files*/, const char* name, sqlite3_file* file, int flags, int* out_flags) {
  auto* const disk_file = new (file) DiskFile{};
  const int code = RealVfs()->xOpen(RealVfs(), name, RealFile(file), flags, out_flags);
  if (RealFile(file)->pMethods == nullptr) return code;
  disk_file->methods = {2,
                        Close,
                        Read,
                        Write,
                        Truncate,
                        Sync,
                        FileSize,
                        Lock,
                        Unlock,
                        CheckReservedLock,
                        FileControl,
                        SectorSize,
                        DeviceCharacteristics,
                        ShmMap,
                        ShmLock,
                        ShmBarrier,
                        ShmUnmap,
                        nullptr,
                        nullptr};
  disk_file->base.pMethods = &disk_file->methods;
  return code;
}

}  // namespace

FailingDisk::FailingDisk() {
  vfs = *RealVfs();
  vfs.zName = "failing disk";
  vfs.pNext = nullptr;
  vfs.szOsFile = RealVfs()->szOsFile + static_cast<int>(sizeof(DiskFile));
  vfs.xOpen = Open;
  MakeRoom();
  if (sqlite3_vfs_register(&vfs, 1) != SQLITE_OK) throw std::runtime_error("the failing disk cannot be used");
}

FailingDisk::~FailingDisk() {
  sqlite3_vfs_unregister(&vfs);
  sqlite3_vfs_register(RealVfs(), 1);
}

void FailingDisk::FillAfter(int count) {
  is_filling = true;
  writes_left = count;
  has_failed = false;
}

void FailingDisk::MakeRoom() { is_filling = false; }

bool FailingDisk::HasFailed() { return has_failed; }

}  // namespace ferrowind::contract
