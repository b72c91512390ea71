#include "ferrowind/adapters/postgres/database_creation.h"

#include <string>
#include <string_view>

#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/postgres/content_target.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/delivered_objects.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres/transaction_engine.h"
#include "ferrowind/adapters/postgres/work_commit.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "database/postgres/embedded_sql.h"
#include "database/seed/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;

/// A text for each reason why the database cannot become a calendar database, the plainest first.
constexpr const char* kObstacles =
    "SELECT 'it stores texts as ' || current_setting('server_encoding') || ' instead of UTF8'"
    " WHERE current_setting('server_encoding') <> 'UTF8'"
    " UNION ALL SELECT 'it has a schema ferrowind already' FROM pg_catalog.pg_namespace WHERE nspname = "
    "'ferrowind'"
    " UNION ALL SELECT 'it is not empty: there is ' || n.nspname || '.' || c.relname"
    "  FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace"
    "  WHERE n.nspname NOT LIKE 'pg\\_%' AND n.nspname <> 'information_schema'"
    " LIMIT 1";

void RefuseObstacles(ServerConnection& connection) {
  const auto obstacles = ReadRecordSet(connection.Query(kObstacles).get());
  if (obstacles->Eof()) return;
  throw Failure(platform::failure_number::kInvalidArgument,
                connection.DatabaseName() + " cannot become a calendar database: " +
                    platform::ToText(obstacles->Cell(obstacles->BookmarkAt(0), 0)));
}

/// Two that create at the same time see an empty database both; the server makes the second wait for the
/// first.
void CreateSchemaOnce(ServerConnection& connection) {
  try {
    CreateDeliveredSchema(connection);
  } catch (const Failure& failure) {
    if (!IsOfState(failure, "23505") && !IsOfState(failure, "42P06")) throw;
    throw Introduced(connection.DatabaseName() +
                         " cannot become a calendar database: somebody else was making it one at the same "
                         "time and was first. ",
                     failure);
  }
}

}  // namespace

void CreateObjects(ServerConnection& connection, const std::function<void()>& fill) {
  RefuseObstacles(connection);
  connection.RunScript("BEGIN");
  connection.RunScript(std::string(embedded::kPostgresRoles));
  CreateSchemaOnce(connection);
  for (const std::string_view script : {embedded::kBaseData, embedded::kCurrencies}) {
    connection.RunScript(std::string(script));
  }
  ServerTarget content(connection, ServerTarget::Kind::kNew);
  chain::WriteChainStart(content, 0, {});
  if (fill) fill();
  GiveDeliveredRights(connection);
}

void CreateDatabaseObjects(const std::string& connection_string,
                           const std::function<void(std::shared_ptr<platform::Engine> engine)>& fill,
                           const std::function<bool()>& is_stopped) {
  platform::WithFailuresOnly([&] {
    const auto connection = std::make_shared<ServerConnection>(connection_string, is_stopped);
    CreateObjects(*connection, [&] {
      if (fill) fill(std::make_shared<TransactionEngine>(connection));
    });
    connection->StopNoMore();
    CommitWork(*connection);
  });
}

}  // namespace ferrowind::postgres
