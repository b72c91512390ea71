// What the tests' own statements and model database are made by where there is no libpq.

#include <string>
#include <string_view>

#include "ferrowind/adapters/odbc/server_link.h"
#include "ferrowind/adapters/postgres/delivered_scripts.h"
#include "ferrowind/platform/values/conversion.h"

#include "database/postgres/embedded_sql.h"
#include "database/seed/embedded_sql.h"
#include "tests/contract/odbc/odbc_server.h"
#include "tests/contract/postgres/model_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

/// The superuser's, who has time.
odbc::ServerLink LinkTo(const std::string& database) {
  return odbc::ServerLink(
      odbc::ConnectionString(odbc_server::SuperuserConnectionString(database) + ";CallTimeout=600"));
}

}  // namespace

void postgres_server::Execute(const std::string& database, const std::string& sql) {
  static_cast<void>(LinkTo(database).Run(sql));
}

std::string postgres_server::Ask(const std::string& database, const std::string& query) {
  const auto rows = LinkTo(database).Query(query);
  return rows->Eof() ? std::string() : platform::ToTextOrEmpty(rows->Cell(rows->BookmarkAt(0), 0));
}

const std::string& ModelDatabase() {
  static const std::string name = [] {
    std::string created = postgres_server::CreateEmptyDatabase();
    odbc::ServerLink link = LinkTo(created);
    const auto run = [&](std::string_view script) { static_cast<void>(link.Run(std::string(script))); };
    run("BEGIN");
    run(embedded::kPostgresRoles);
    for (const std::string_view script : postgres::DeliveredScripts()) run(script);
    run(embedded::kBaseData);
    run(embedded::kCurrencies);
    run(embedded::kPostgresRights);
    run("COMMIT");
    return created;
  }();
  return name;
}

bool IsSoundDatabase(const std::string& /*database*/) { return true; }

}  // namespace ferrowind::contract
