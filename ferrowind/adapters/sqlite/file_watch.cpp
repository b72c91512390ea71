#include "ferrowind/adapters/sqlite/file_watch.h"

#include <filesystem>
#include <system_error>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/busy_timeout.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/file_status.h"
#include "ferrowind/adapters/sqlite/schema_guard.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/statement_limit.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {
namespace {

using std::chrono::nanoseconds;
using std::chrono::seconds;
using std::chrono::system_clock;

constexpr std::chrono::milliseconds kNoWaiting{0};
/// Longer than the steps in which a file system tells times.
constexpr seconds kOldAfter{2};

bool MeansLocked(const platform::Failure& failure) { return (failure.Number() & 0xFF) == SQLITE_BUSY; }

}  // namespace

bool FileWatch::Look() {
  return platform::WithFailuresOnly([&] {
    const auto traces = TracesNow();
    if (traces && seen_ && seen_->were_old && *traces == seen_->traces) return false;
    try {
      // What is read now may be newer than the traces, never older.
      const std::int64_t newest_entry = NewestEntry();
      const bool is_changed =
          !seen_ || !traces || !traces->IsSameFileAs(seen_->traces) || newest_entry != seen_->newest_entry;
      if (traces) seen_ = Seen{*traces, traces->AreOld(), newest_entry};
      return is_changed;
    } catch (const platform::Failure& failure) {
      // Somebody is changing it just now; the next look tells.
      if (MeansLocked(failure)) return false;
      seen_.reset();
      throw;
    }
  });
}

bool FileWatch::Traces::AreOld() const {
  const auto now = std::chrono::duration_cast<nanoseconds>(system_clock::now().time_since_epoch());
  const auto is_old = [&](const Trace& trace) { return now - nanoseconds(trace.written) > kOldAfter; };
  return is_old(file) && (!log || is_old(*log));
}

std::optional<FileWatch::Trace> FileWatch::TraceOf(const std::string& path) {
  std::error_code error;
  const auto status = StatusBehindLinks(path, error);
  if (!status) return std::nullopt;
  return Trace{status->device, status->number, status->size, status->written};
}

std::optional<FileWatch::Traces> FileWatch::TracesNow() const {
  // The log stands beside the file itself, not beside a link to it, which may lead elsewhere by now.
  std::error_code error;
  const std::string path = platform::FileName(std::filesystem::canonical(platform::FilePath(path_), error));
  const auto file = TraceOf(path);
  if (error || !file) return std::nullopt;
  Traces traces{*file, TraceOf(path + "-wal")};
  // Readers, too, make one that stays empty.
  if (traces.log && traces.log->size == 0) traces.log.reset();
  return traces;
}

std::int64_t FileWatch::NewestEntry() const {
  DatabaseHandle database(path_, kNoWaiting);
  const StatementLimit limit(database, kLongestCall);
  const Transaction transaction(database, Transaction::Kind::kReading);
  SchemaGuard(database).Look();
  Statement newest(database, "SELECT max(EntryID) FROM CldHistory");
  newest.Step();
  return newest.Integer(0);
}

}  // namespace ferrowind::sqlite
