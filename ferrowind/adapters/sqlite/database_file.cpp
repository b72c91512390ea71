#include "ferrowind/adapters/sqlite/database_file.h"

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <sqlite3.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/files_beside.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Failure;

constexpr const char* kFileExists = "there is a file already";

Failure CannotCreate(const std::string& path, int error) {
  return {error, "The database " + path + " cannot be created: " + std::generic_category().message(error)};
}

Failure InTheWay(const std::string& path, const std::string& what) {
  return {EEXIST, "The database " + path + " cannot be created: " + what};
}

/// Whether there is a file at `path`, which then is empty; anything else there is a failure.
bool IsEmptyFileAt(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::symlink_status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) return false;
  if (status.type() == std::filesystem::file_type::none) throw CannotCreate(path, error.value());
  if (status.type() != std::filesystem::file_type::regular) {
    throw InTheWay(path, "there is something other than a file already");
  }
  const auto size = std::filesystem::file_size(path, error);
  if (error) throw CannotCreate(path, error.value());
  if (size != 0) throw InTheWay(path, kFileExists);
  return true;
}

/// An empty file that a new database takes the place of. Two creations must not both believe that they have
/// replaced it, so each holds a lock on it until it is done.
class ReplacedFile {
 public:
  explicit ReplacedFile(const std::string& path) : handle_(Open(path)) {
    if (handle_ < 0) throw CannotCreate(path, errno);
    try {
      Lock(path);
      RequireStillThere(path);
    } catch (const Failure&) {
      close(handle_);
      throw;
    }
  }
  ReplacedFile(const ReplacedFile&) = delete;
  ReplacedFile& operator=(const ReplacedFile&) = delete;
  ~ReplacedFile() { close(handle_); }

 private:
  /// For writing where that is allowed: network drives lock nothing else.
  static int Open(const std::string& path) {
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int handle = open(path.c_str(), O_RDWR | kFlags);
    return handle < 0 && errno == EACCES ? open(path.c_str(), O_RDONLY | kFlags) : handle;
  }

  void Lock(const std::string& path) const {
    if (flock(handle_, LOCK_EX | LOCK_NB) == 0) return;
    if (errno == EWOULDBLOCK) throw InTheWay(path, "another program is creating it just now");
    throw CannotCreate(path, errno);
  }

  /// Whoever held the lock before may have been done in the meantime.
  void RequireStillThere(const std::string& path) const {
    struct stat locked {};
    struct stat there {};
    const bool is_same = fstat(handle_, &locked) == 0 && lstat(path.c_str(), &there) == 0 &&
                         locked.st_dev == there.st_dev && locked.st_ino == there.st_ino;
    if (!is_same || there.st_size != 0) throw InTheWay(path, kFileExists);
  }

  int handle_;
};

/// The path of a file that SQLite put beside the database and left there; empty without one.
std::string CompanionOf(const std::string& path) {
  for (const auto suffix : kSuffixesBeside) {
    std::string leftover = path + std::string(suffix);
    if (IsAnythingAt(leftover)) return leftover;
  }
  return {};
}

/// SQLite would take them for the new database's own and destroy it.
void RefuseLeftovers(const std::string& path) {
  const std::string leftover = CompanionOf(path);
  if (!leftover.empty()) {
    throw InTheWay(path, "there is a file " + leftover + " of a database that is gone; move it away first");
  }
}

/// Has everything in the one file. SQLite tells no error of what it does when it closes a database, as on a
/// full disk; so it is asked to do the rest.
void GatherInOneFile(const std::string& path) {
  if (CompanionOf(path).empty()) return;
  DatabaseHandle(path).Execute("SELECT count(*) FROM sqlite_schema; PRAGMA wal_checkpoint(TRUNCATE)");
  RefuseLeftovers(path);
}

/// A new file in the folder of the database to be, which is removed unless it takes that database's place.
class NewFile {
 public:
  explicit NewFile(const std::string& target) : target_(target), path_(target + ".creating-XXXXXX") {
    const int file = mkstemp(path_.data());
    if (file < 0) throw CannotCreate(target_, errno);
    close(file);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() {
    if (is_in_place_) return;
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
    for (const auto suffix : kSuffixesBeside) std::filesystem::remove(path_ + std::string(suffix), ignored);
  }

  [[nodiscard]] const std::string& Path() const { return path_; }

  void TakePlace(bool replaces_empty_file) {
    if (!replaces_empty_file) {
      MoveWhereNothingIs();
    } else if (rename(path_.c_str(), target_.c_str()) != 0) {
      throw CannotCreate(target_, errno);
    }
    is_in_place_ = true;
    MakeFolderDurable();
  }

 private:
  void MoveWhereNothingIs() const {
    if (renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, target_.c_str(), RENAME_NOREPLACE) == 0) return;
    if (errno == EEXIST) throw InTheWay(target_, kFileExists);
    if (errno != EINVAL && errno != ENOSYS) throw CannotCreate(target_, errno);
    // Network drives know only the plain kind, which replaces. A second name never does.
    GiveSecondName();
    unlink(path_.c_str());
  }

  void GiveSecondName() const {
    if (link(path_.c_str(), target_.c_str()) == 0) return;
    const int error = errno;
    // A network drive may have done it, lost its answer and been asked again.
    struct stat status {};
    if (stat(path_.c_str(), &status) == 0 && status.st_nlink == 2) return;
    if (error == EEXIST) throw InTheWay(target_, kFileExists);
    throw CannotCreate(target_, error);
  }

  void MakeFolderDurable() const {
    const std::string folder = std::filesystem::path(target_).parent_path().string();
    const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    fsync(handle);
    close(handle);
  }

  std::string target_;
  std::string path_;
  bool is_in_place_ = false;
};

void WriteDelivered(const std::string& path) {
  DatabaseHandle database(path);
  Transaction transaction(database, Transaction::Kind::kWriting);
  FillWithDeliveredSchema(database);
  transaction.Commit();
}

}  // namespace

void CreateDatabase(const std::string& path,
                    const std::function<void(const std::string& connection_string)>& fill) {
  const std::string target = AbsolutePath(path);
  std::optional<ReplacedFile> replaced;
  if (IsEmptyFileAt(target)) replaced.emplace(target);
  RefuseLeftovers(target);
  NewFile file(target);
  WriteDelivered(file.Path());
  if (fill) fill(std::string(Engine::kScheme) + ":" + file.Path());
  GatherInOneFile(file.Path());
  file.TakePlace(replaced.has_value());
}

}  // namespace ferrowind::sqlite
