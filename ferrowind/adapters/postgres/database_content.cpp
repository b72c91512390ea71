#include "ferrowind/adapters/postgres/database_content.h"

#include "ferrowind/adapters/postgres/administrator.h"
#include "ferrowind/adapters/postgres/connection_use.h"
#include "ferrowind/adapters/postgres/content_source.h"
#include "ferrowind/adapters/postgres/content_target.h"
#include "ferrowind/adapters/postgres/database_creation.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres/table_locks.h"
#include "ferrowind/adapters/postgres/transaction_engine.h"
#include "ferrowind/adapters/postgres/work_commit.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::postgres {
namespace {

platform::Value Answer(ServerConnection& connection, const std::string& question) {
  const auto rows = ReadRecordSet(connection.Query(question).get(), 1);
  return rows->Eof() ? platform::Value() : rows->Cell(rows->CurrentBookmark(), 0);
}

bool Exists(ServerConnection& connection, const std::string& kind, const std::string& name) {
  return !Answer(connection, "SELECT to_reg" + kind + "('" + name + "')::text").IsEmpty();
}

bool IsCalendarDatabase(ServerConnection& connection) { return Exists(connection, "namespace", "ferrowind"); }

constexpr const char* kBeginSnapshot = "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY";

/// A connection and the transaction that all content is read in.
class SnapshotSource : public content::Source {
 public:
  SnapshotSource(const std::string& connection_string, const std::function<bool()>& is_stopped)
      : connection_(connection_string, is_stopped), content_(connection_, "ferrowind") {
    RequireCalendarDatabase(connection_);
    RequireAdministrator(connection_);
    connection_.RunScript(kBeginSnapshot);
    KeepOut(connection_, KeptOut::kChangesOfTables);
    RequireDeliveredVersion(connection_);
  }

  std::string Name() override { return content_.Name(); }
  std::string Identity() override { return content_.Identity(); }
  std::int64_t CountRows(const content::Table& table) override { return content_.CountRows(table); }
  std::unique_ptr<content::RowReader> Rows(const content::Table& table, content::RowOrder order) override {
    return content_.Rows(table, order);
  }

 private:
  ServerConnection connection_;
  ServerSource content_;
};

void Fill(ServerConnection& connection, ServerTarget::Kind kind,
          const std::function<void(content::Target& target)>& fill) {
  ServerTarget target(connection, kind);
  fill(target);
  ContinueIdentifiers(connection);
}

void FillUncommitted(ServerConnection& connection, const std::function<void(content::Target& target)>& fill) {
  if (!IsCalendarDatabase(connection)) {
    return CreateObjects(connection, [&] { Fill(connection, ServerTarget::Kind::kNew, fill); });
  }
  RequireAdministrator(connection);
  connection.RunScript("BEGIN ISOLATION LEVEL READ COMMITTED");
  RequireDeliveredVersion(connection);
  Fill(connection, ServerTarget::Kind::kExisting, fill);
}

}  // namespace

std::unique_ptr<content::Source> OpenContent(const std::string& connection_string,
                                             const std::function<bool()>& is_stopped) {
  return platform::WithFailuresOnly(
      [&] { return std::make_unique<SnapshotSource>(connection_string, is_stopped); });
}

void FillDatabase(const std::string& connection_string,
                  const std::function<void(content::Target& target)>& fill,
                  const std::function<bool()>& is_stopped) {
  platform::WithFailuresOnly([&] {
    ServerConnection connection(connection_string, is_stopped);
    FillUncommitted(connection, fill);
    connection.StopNoMore();
    CommitWork(connection);
  });
}

void ChangeInOneTransaction(const std::string& connection_string,
                            const std::function<void(std::shared_ptr<platform::Engine> engine)>& work) {
  platform::WithFailuresOnly([&] {
    const auto connection = std::make_shared<ServerConnection>(connection_string);
    connection->RunScript("BEGIN");
    work(std::make_shared<TransactionEngine>(connection));
    CommitWork(*connection);
  });
}

content::DatabaseStatus ReadStatus(const std::string& connection_string) {
  return platform::WithFailuresOnly([&] {
    ServerConnection connection(connection_string);
    RequireCalendarDatabase(connection);
    RequireAdministrator(connection);
    connection.RunScript(kBeginSnapshot);
    KeepOut(connection, KeptOut::kChangesOfTables);
    connection.RunScript("SET LOCAL search_path = ferrowind, pg_temp");
    content::DatabaseStatus status;
    status.schema_version = SchemaVersionOf(connection);
    status.engine = "PostgreSQL";
    status.engine_version = platform::ToText(Answer(connection, "SELECT current_setting('server_version')"));
    const auto ask = [&](const std::string& query) { return ReadRecordSet(connection.Query(query).get()); };
    content::CountContent(ask, Exists(connection, "class", "ferrowind.CldHistory"), status);
    status.connections = ReadConnectionUse(connection);
    return status;
  });
}

}  // namespace ferrowind::postgres
