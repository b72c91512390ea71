#include <cerrno>
#include <chrono>

#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/file_status.h"
#include "ferrowind/adapters/sqlite/posix_user.h"

namespace ferrowind::sqlite {
namespace {

constexpr uid_t kSuperuser = 0;

FileStatus::Kind KindOf(mode_t mode) {
  if (S_ISREG(mode)) return FileStatus::Kind::kFile;
  return S_ISLNK(mode) ? FileStatus::Kind::kLink : FileStatus::Kind::kOther;
}

FileStatus StatusFrom(const struct stat& told) {
  using std::chrono::nanoseconds;
  using std::chrono::seconds;
  const auto written = nanoseconds(seconds(told.st_mtim.tv_sec)) + nanoseconds(told.st_mtim.tv_nsec);
  return {.kind = KindOf(told.st_mode),
          .device = told.st_dev,
          .number = told.st_ino,
          .names = told.st_nlink,
          .size = told.st_size,
          .written = written.count(),
          .owner = told.st_uid,
          .group = told.st_gid,
          .group_may_write = (told.st_mode & S_IWGRP) != 0,
          .others_may_write = (told.st_mode & S_IWOTH) != 0,
          .gives_group = (told.st_mode & S_ISGID) != 0};
}

std::error_code LastError() { return {errno, std::generic_category()}; }

}  // namespace

std::optional<FileStatus> StatusOf(const std::string& path) {
  struct stat told {};
  if (lstat(path.c_str(), &told) != 0) return std::nullopt;
  return StatusFrom(told);
}

std::optional<FileStatus> StatusBehindLinks(const std::string& path, std::error_code& error) {
  struct stat told {};
  if (stat(path.c_str(), &told) == 0) return StatusFrom(told);
  error = LastError();
  return std::nullopt;
}

std::error_code WhyNotReadable(const std::string& path) {
  return access(path.c_str(), R_OK) == 0 ? std::error_code() : LastError();
}

bool IsOwnOrSuperusers(const FileStatus& file) { return file.owner == geteuid() || file.owner == kSuperuser; }

std::string OwnerName(const FileStatus& file) { return UserName(file.owner); }

}  // namespace ferrowind::sqlite
