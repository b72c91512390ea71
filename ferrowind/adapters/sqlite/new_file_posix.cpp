#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/new_file.h"

namespace ferrowind::sqlite {
namespace {

platform::Failure CannotCreateBy(int error, const std::string& path) {
  return CannotCreate(path, std::error_code(error, std::generic_category()));
}

/// For writing where that is allowed: network drives lock nothing else.
int Open(const std::string& path) {
  constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const int handle = open(path.c_str(), O_RDWR | kFlags);
  return handle < 0 && errno == EACCES ? open(path.c_str(), O_RDONLY | kFlags) : handle;
}

void Lock(int handle, const std::string& path) {
  if (flock(handle, LOCK_EX | LOCK_NB) == 0) return;
  if (errno == EWOULDBLOCK) throw InTheWay(path, "another program is creating it just now");
  throw CannotCreateBy(errno, path);
}

/// Whoever held the lock before may have been done in the meantime.
void RequireStillThere(int handle, const std::string& path) {
  struct stat locked {};
  struct stat there {};
  const bool is_same = fstat(handle, &locked) == 0 && lstat(path.c_str(), &there) == 0 &&
                       locked.st_dev == there.st_dev && locked.st_ino == there.st_ino;
  if (!is_same || there.st_size != 0) throw InTheWay(path, kFileExists);
}

void GiveSecondName(const std::string& path, const std::string& target) {
  if (link(path.c_str(), target.c_str()) == 0) return;
  const int error = errno;
  // A network drive may have done it, lost its answer and been asked again.
  struct stat status {};
  if (stat(path.c_str(), &status) == 0 && status.st_nlink == 2) return;
  if (error == EEXIST) throw InTheWay(target, kFileExists);
  throw CannotCreateBy(error, target);
}

void MoveWhereNothingIs(const std::string& path, const std::string& target) {
  if (renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0) return;
  if (errno == EEXIST) throw InTheWay(target, kFileExists);
  if (errno != EINVAL && errno != ENOSYS) throw CannotCreateBy(errno, target);
  // Network drives know only the plain kind, which replaces. A second name never does.
  GiveSecondName(path, target);
  unlink(path.c_str());
}

void MakeFolderDurable(const std::string& target) {
  const std::string folder = std::filesystem::path(target).parent_path().string();
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}

}  // namespace

ReplacedFile::ReplacedFile(const std::string& path) : handle_(Open(path)) {
  if (handle_ < 0) throw CannotCreateBy(errno, path);
  try {
    Lock(handle_, path);
    RequireStillThere(handle_, path);
  } catch (const platform::Failure&) {
    close(handle_);
    throw;
  }
}

ReplacedFile::~ReplacedFile() { close(handle_); }

NewFile::NewFile(const std::string& target) : target_(target), path_(target + ".creating-XXXXXX") {
  const int file = mkstemp(path_.data());
  if (file < 0) throw CannotCreateBy(errno, target_);
  close(file);
}

void NewFile::TakePlace() {
  MoveWhereNothingIs(path_, target_);
  is_in_place_ = true;
  MakeFolderDurable(target_);
}

void NewFile::TakePlaceOf(ReplacedFile& /*replaced*/) {
  if (rename(path_.c_str(), target_.c_str()) != 0) throw CannotCreateBy(errno, target_);
  is_in_place_ = true;
  MakeFolderDurable(target_);
}

}  // namespace ferrowind::sqlite
