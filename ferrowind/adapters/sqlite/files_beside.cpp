#include "ferrowind/adapters/sqlite/files_beside.h"

#include <utility>

#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {
namespace {

std::optional<std::string> DangerIn(const FileStatus& file, const FileStatus& database,
                                    const FileStatus& folder) {
  if (file.kind == FileStatus::Kind::kLink) return "is a link; move it away";
  if (file.kind != FileStatus::Kind::kFile) return "is no file; move it away";
  if (file.names > 1) return "is another name of some other file; move it away";
  if (!IsOfAWriter(file, database, folder)) {
    return "belongs to " + OwnerName(file) +
           ", who may not write the database; find out who put it there, and move it away";
  }
  return std::nullopt;
}

}  // namespace

bool IsAnythingAt(const std::string& path) { return StatusOf(path).has_value(); }

bool IsOfAWriter(const FileStatus& file, const FileStatus& database, const FileStatus& folder) {
  if (file.owner == database.owner || IsOwnOrSuperusers(file) || database.others_may_write) return true;
  // Only a member makes a file of a group, except where the folder gives everybody's files its own.
  const bool folder_gives_group_to_all = folder.others_may_write && folder.gives_group;
  return database.group_may_write && file.group == database.group && !folder_gives_group_to_all;
}

FilesBeside::FilesBeside(std::string path)
    : path_(std::move(path)),
      database_(StatusOf(path_)),
      folder_(StatusOf(platform::FileName(platform::FilePath(path_).parent_path()))) {}

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

std::optional<std::string> FilesBeside::DangerOf(const FileStatus& file, std::string_view suffix) const {
  if (!database_ || !folder_) return std::nullopt;
  const auto danger = DangerIn(file, *database_, *folder_);
  if (!danger) return std::nullopt;
  return "beside it " + path_ + std::string(suffix) + " " + *danger;
}

std::optional<std::string> DangerBeside(const std::string& path) { return FilesBeside(path).Danger(); }

}  // namespace ferrowind::sqlite
