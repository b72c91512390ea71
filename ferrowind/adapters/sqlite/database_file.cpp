#include "ferrowind/adapters/sqlite/database_file.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/files_beside.h"
#include "ferrowind/adapters/sqlite/new_file.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {
namespace {

/// Whether there is a file at `path`, which then is empty; anything else there is a failure.
bool IsEmptyFileAt(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::symlink_status(platform::FilePath(path), error);
  if (status.type() == std::filesystem::file_type::not_found) return false;
  if (status.type() == std::filesystem::file_type::none) throw CannotCreate(path, error);
  if (status.type() != std::filesystem::file_type::regular) {
    throw InTheWay(path, "there is something other than a file already");
  }
  const auto size = std::filesystem::file_size(platform::FilePath(path), error);
  if (error) throw CannotCreate(path, error);
  if (size != 0) throw InTheWay(path, kFileExists);
  return true;
}

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
  if (replaced) {
    file.TakePlaceOf(*replaced);
  } else {
    file.TakePlace();
  }
}

}  // namespace ferrowind::sqlite
