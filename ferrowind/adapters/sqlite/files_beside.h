#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/adapters/sqlite/file_status.h"

namespace ferrowind::sqlite {

/// What SQLite puts behind the name of a database for the files that it keeps beside it.
inline constexpr std::string_view kLogSuffix = "-wal";
inline constexpr std::string_view kSharedMemorySuffix = "-shm";
inline constexpr std::string_view kJournalSuffix = "-journal";
inline constexpr std::array<std::string_view, 3> kSuffixesBeside = {kLogSuffix, kSharedMemorySuffix,
                                                                    kJournalSuffix};

/// What stands beside a database file, measured by the database and its folder as they are when this is made.
///
/// A rollback journal overwrites the database and names a file that is deleted, and whoever may write to the
/// folder can put one there; these databases need none. A log may change what the database says, and both it
/// and the shared memory are written to: so neither may be a link, another name of some other file, or the
/// file of somebody who may not write the database.
class FilesBeside {
 public:
  /// `path` is that of the database, absolute and no link.
  explicit FilesBeside(std::string path);

  /// Why SQLite must not use what stands there now, in words that follow "cannot be opened: "; nothing when
  /// all of it may be used, or nothing is there, or the database is missing.
  [[nodiscard]] std::optional<std::string> Danger() const;
  /// The same of the log or the shared memory alone.
  [[nodiscard]] std::optional<std::string> DangerOf(std::string_view suffix) const;
  /// Whether there is a log, or a shared memory, and no danger in it.
  [[nodiscard]] bool HasHarmless(std::string_view suffix) const;

 private:
  [[nodiscard]] std::optional<std::string> DangerOf(const FileStatus& file, std::string_view suffix) const;

  std::string path_;
  /// Nothing when there is none.
  std::optional<FileStatus> database_;
  std::optional<FileStatus> folder_;
};

/// `FilesBeside::Danger` of the database at `path`.
[[nodiscard]] std::optional<std::string> DangerBeside(const std::string& path);

/// Whether there is anything at `path`, a link that leads nowhere too.
[[nodiscard]] bool IsAnythingAt(const std::string& path);

/// Whether whoever owns `file` may write `database`, as far as the two and their `folder` tell: its owner,
/// this process' user, the superuser, or a member of a group that may.
[[nodiscard]] bool IsOfAWriter(const FileStatus& file, const FileStatus& database, const FileStatus& folder);

}  // namespace ferrowind::sqlite
