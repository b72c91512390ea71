#include "ferrowind/adapters/sqlite/files_beside.h"

#include <filesystem>

#include <unistd.h>

#include "ferrowind/adapters/sqlite/system_user.h"

namespace ferrowind::sqlite {
namespace {

constexpr uid_t kSuperuser = 0;

std::optional<struct stat> StatusOf(const std::string& path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

std::optional<std::string> DangerOf(const struct stat& file, const struct stat& database,
                                    const struct stat& folder) {
  if (S_ISLNK(file.st_mode)) return "is a link; move it away";
  if (!S_ISREG(file.st_mode)) return "is no file; move it away";
  if (file.st_nlink > 1) return "is another name of some other file; move it away";
  if (!IsOfAWriter(file, database, folder)) {
    return "belongs to " + UserName(file.st_uid) +
           ", who may not write the database; find out who put it there, and move it away";
  }
  return std::nullopt;
}

}  // namespace

bool IsAnythingAt(const std::string& path) { return StatusOf(path).has_value(); }

bool IsOfAWriter(const struct stat& file, const struct stat& database, const struct stat& folder) {
  if (file.st_uid == database.st_uid || file.st_uid == geteuid() || file.st_uid == kSuperuser) return true;
  if ((database.st_mode & S_IWOTH) != 0) return true;
  // Only a member makes a file of a group, except where the folder gives everybody's files its own.
  const bool folder_gives_group_to_all = (folder.st_mode & S_IWOTH) != 0 && (folder.st_mode & S_ISGID) != 0;
  return (database.st_mode & S_IWGRP) != 0 && file.st_gid == database.st_gid && !folder_gives_group_to_all;
}

std::optional<std::string> DangerBeside(const std::string& path) {
  const auto database = StatusOf(path);
  const auto folder = StatusOf(std::filesystem::path(path).parent_path().string());
  // Without them SQLite says what is missing.
  if (!database || !folder) return std::nullopt;
  const std::string journal = path + std::string(kJournalSuffix);
  if (IsAnythingAt(journal)) {
    return "beside it is a file " + journal +
           ", which these programs never leave, and which would put older content into the database and "
           "could "
           "delete another file of yours; find out who put it there, and move it away";
  }
  for (const auto suffix : {kLogSuffix, kSharedMemorySuffix}) {
    const std::string name = path + std::string(suffix);
    const auto file = StatusOf(name);
    if (!file) continue;
    if (const auto danger = DangerOf(*file, *database, *folder)) return "beside it " + name + " " + *danger;
  }
  return std::nullopt;
}

}  // namespace ferrowind::sqlite
