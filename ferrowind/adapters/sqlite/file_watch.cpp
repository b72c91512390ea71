#include "ferrowind/adapters/sqlite/file_watch.h"

#include <chrono>
#include <utility>

#include <sqlite3.h>
#include <sys/stat.h>

#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

constexpr std::chrono::milliseconds kNoWaiting{0};

bool MeansLocked(const platform::Failure& failure) { return (failure.Number() & 0xFF) == SQLITE_BUSY; }

}  // namespace

bool FileWatch::Look() {
  return platform::WithFailuresOnly([&] {
    // A backup that was put in its place is another file, which an open connection would never notice.
    const auto file = FileAtPath();
    if (!database_ || file != file_) {
      version_.reset();
      database_.reset();
      database_.emplace(path_, kNoWaiting);
      file_ = file;
    }
    try {
      const std::optional<std::int64_t> now = DataVersion();
      return std::exchange(version_, now) != now;
    } catch (const platform::Failure& failure) {
      // Somebody is changing it just now; the next look tells.
      if (MeansLocked(failure)) return false;
      database_.reset();
      throw;
    }
  });
}

std::optional<FileWatch::FileIdentity> FileWatch::FileAtPath() const {
  struct stat status {};
  if (stat(path_.c_str(), &status) != 0) return std::nullopt;
  return FileIdentity{status.st_dev, status.st_ino};
}

std::int64_t FileWatch::DataVersion() const {
  Statement version(*database_, "PRAGMA data_version");
  version.Step();
  return version.Integer(0);
}

}  // namespace ferrowind::sqlite
