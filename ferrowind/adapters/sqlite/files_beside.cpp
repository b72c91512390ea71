#include "ferrowind/adapters/sqlite/files_beside.h"

#include <algorithm>
#include <cstddef>
#include <utility>

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

std::optional<std::string> DangerIn(const struct stat& file, const struct stat& database,
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

FilesBeside::FilesBeside(std::string path)
    : path_(std::move(path)),
      database_(StatusOf(path_)),
      folder_(StatusOf(path_.substr(0, std::max<std::size_t>(path_.rfind('/'), 1)))) {}

std::optional<std::string> FilesBeside::Danger() const {
  // Without them SQLite says what is missing.
  if (!database_ || !folder_) return std::nullopt;
  const std::string journal = path_ + std::string(kJournalSuffix);
  if (IsAnythingAt(journal)) {
    return "beside it is a file " + journal +
           ", which these programs never leave, and which would put older content into the database and "
           "could "
           "delete another file of yours; find out who put it there, and move it away";
  }
  for (const auto suffix : {kLogSuffix, kSharedMemorySuffix}) {
    if (auto danger = DangerOf(suffix)) return danger;
  }
  return std::nullopt;
}

std::optional<std::string> FilesBeside::DangerOf(std::string_view suffix) const {
  const auto file = StatusOf(path_ + std::string(suffix));
  return file ? DangerOf(*file, suffix) : std::nullopt;
}

bool FilesBeside::HasHarmless(std::string_view suffix) const {
  const auto file = StatusOf(path_ + std::string(suffix));
  return file && !DangerOf(*file, suffix);
}

std::optional<std::string> FilesBeside::DangerOf(const struct stat& file, std::string_view suffix) const {
  if (!database_ || !folder_) return std::nullopt;
  const auto danger = DangerIn(file, *database_, *folder_);
  if (!danger) return std::nullopt;
  return "beside it " + path_ + std::string(suffix) + " " + *danger;
}

std::optional<std::string> DangerBeside(const std::string& path) { return FilesBeside(path).Danger(); }

}  // namespace ferrowind::sqlite
