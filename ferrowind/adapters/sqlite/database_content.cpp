#include "ferrowind/adapters/sqlite/database_content.h"

#include <cstdint>
#include <filesystem>
#include <system_error>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/content_source.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/result_reader.h"
#include "ferrowind/adapters/sqlite/schema_guard.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/statement_limit.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/adapters/sqlite/transaction_engine.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {
namespace {

/// An open calendar database and the transaction that all of its content is read in.
class Snapshot {
 public:
  explicit Snapshot(const std::string& path, const std::function<bool()>& is_stopped = {})
      : database_(path), limit_(database_, is_stopped), transaction_(database_, Transaction::Kind::kReading) {
    RequireCalendarDatabase(database_);
  }

  [[nodiscard]] DatabaseHandle& Database() { return database_; }

 private:
  DatabaseHandle database_;
  StatementLimit limit_;
  Transaction transaction_;
};

class SnapshotSource : public content::Source {
 public:
  SnapshotSource(const std::string& path, const std::function<bool()>& is_stopped)
      : snapshot_(path, is_stopped), content_(snapshot_.Database()) {
    RequireDeliveredVersion(snapshot_.Database());
  }

  std::string Name() override { return content_.Name(); }
  std::string Identity() override { return content_.Identity(); }
  std::int64_t CountRows(const content::Table& table) override { return content_.CountRows(table); }
  std::unique_ptr<content::RowReader> Rows(const content::Table& table, content::RowOrder order) override {
    return content_.Rows(table, order);
  }

 private:
  Snapshot snapshot_;
  FileSource content_;
};

enum class Target { kExisting, kNew };

void FillExisting(const std::string& path, Target kind,
                  const std::function<void(content::Target& target)>& fill,
                  const std::function<bool()>& is_stopped) {
  DatabaseHandle database(path);
  const StatementLimit limit(database, is_stopped);
  Transaction transaction(database, Transaction::Kind::kWriting);
  RequireCalendarDatabase(database);
  RequireDeliveredVersion(database);
  {
    FileTarget target(database, kind == Target::kNew);
    fill(target);
  }
  transaction.Commit();
}

bool IsMissingOrEmpty(const std::string& path) {
  std::error_code error;
  const auto file = platform::FilePath(path);
  if (std::filesystem::symlink_status(file, error).type() == std::filesystem::file_type::not_found)
    return true;
  return std::filesystem::is_regular_file(file, error) && std::filesystem::file_size(file, error) == 0 &&
         !error;
}

bool HasTable(const DatabaseHandle& database, const char* name) {
  const platform::Value wanted(name);
  Statement ask(database, "SELECT 1 FROM sqlite_schema WHERE type = 'table' AND name = ?1");
  ask.Bind(1, wanted);
  return ask.Step();
}

}  // namespace

std::unique_ptr<content::Source> OpenContent(const std::string& path,
                                             const std::function<bool()>& is_stopped) {
  return platform::WithFailuresOnly([&] { return std::make_unique<SnapshotSource>(path, is_stopped); });
}

void FillDatabase(const std::string& path, const std::function<void(content::Target& target)>& fill,
                  const std::function<bool()>& is_stopped) {
  platform::WithFailuresOnly([&] {
    if (!IsMissingOrEmpty(AbsolutePath(path))) return FillExisting(path, Target::kExisting, fill, is_stopped);
    CreateDatabase(path, [&](const std::string& unfinished) {
      FillExisting(PathIn(unfinished), Target::kNew, fill, is_stopped);
    });
  });
}

void ChangeInOneTransaction(const std::string& path,
                            const std::function<void(std::shared_ptr<platform::Engine> engine)>& work) {
  const auto engine = std::make_shared<TransactionEngine>(std::string(Engine::kScheme) + ":" + path);
  work(engine);
  engine->Commit();
}

content::DatabaseStatus ReadStatus(const std::string& path) {
  return platform::WithFailuresOnly([&] {
    Snapshot snapshot(path);
    const DatabaseHandle& database = snapshot.Database();
    content::DatabaseStatus status;
    status.schema_version = SchemaVersionOf(database);
    status.engine = "SQLite";
    status.engine_version = sqlite3_libversion();
    const auto ask = [&](const std::string& query) {
      Statement statement(database, query);
      return ReadRecordSet(statement);
    };
    content::CountContent(ask, HasTable(database, "CldHistory"), status);
    return status;
  });
}

}  // namespace ferrowind::sqlite
