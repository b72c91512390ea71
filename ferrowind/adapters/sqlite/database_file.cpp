#include "ferrowind/adapters/sqlite/database_file.h"

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <sqlite3.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Failure;

/// What SQLite puts beside a database file.
constexpr std::string_view kCompanions[] = {"-wal", "-shm", "-journal"};

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
  if (size != 0) throw InTheWay(path, "there is a file already");
  return true;
}

/// The path of a file that SQLite put beside the database and left there; empty without one.
std::string CompanionOf(const std::string& path) {
  for (const auto companion : kCompanions) {
    std::string leftover = path + std::string(companion);
    std::error_code error;
    if (std::filesystem::exists(leftover, error)) return leftover;
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
/// full disk; it does the rest, or tells, when the database is used again.
void GatherInOneFile(const std::string& path) {
  if (CompanionOf(path).empty()) return;
  DatabaseHandle(path).Execute("SELECT count(*) FROM sqlite_schema");
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
    for (const auto companion : kCompanions) std::filesystem::remove(path_ + std::string(companion), ignored);
  }

  [[nodiscard]] const std::string& Path() const { return path_; }

  void TakePlace(bool replaces_empty_file) {
    const unsigned flags = replaces_empty_file ? 0 : RENAME_NOREPLACE;
    int result = renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, target_.c_str(), flags);
    // Some file systems know only the plain kind.
    if (result != 0 && errno == EINVAL) result = rename(path_.c_str(), target_.c_str());
    if (result != 0) throw CannotCreate(target_, errno);
    is_in_place_ = true;
    MakeFolderDurable();
  }

 private:
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

/// Lets readers and a writer work side by side. The file keeps this for good.
void TurnOnWriteAheadLog(const DatabaseHandle& database) {
  Statement turn_on(database, "PRAGMA journal_mode = WAL");
  turn_on.Step();
  if (turn_on.Text(0) != "wal") {
    throw Failure(SQLITE_CANTOPEN, "The folder of the database " + database.Path() +
                                       " is on a file system that databases cannot be shared on");
  }
}

void WriteDelivered(const std::string& path) {
  DatabaseHandle database(path);
  {
    Transaction transaction(database, Transaction::Kind::kWriting);
    FillWithDeliveredSchema(database);
    transaction.Commit();
  }
  TurnOnWriteAheadLog(database);
}

}  // namespace

void CreateDatabase(const std::string& path,
                    const std::function<void(const std::string& connection_string)>& fill) {
  const std::string target = AbsolutePath(path);
  const bool replaces_empty_file = IsEmptyFileAt(target);
  RefuseLeftovers(target);
  NewFile file(target);
  WriteDelivered(file.Path());
  if (fill) fill(std::string(Engine::kScheme) + ":" + file.Path());
  GatherInOneFile(file.Path());
  file.TakePlace(replaces_empty_file);
}

}  // namespace ferrowind::sqlite
