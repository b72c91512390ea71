#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract::postgres_server {

void Execute(const std::string& database, const std::string& sql) {
  postgres::ServerConnection(SuperuserUri(database)).RunScript(sql);
}

std::string Ask(const std::string& database, const std::string& query) {
  const auto rows =
      postgres::ReadRecordSet(postgres::ServerConnection(SuperuserUri(database)).Query(query).get());
  return rows->Eof() ? std::string() : platform::ToTextOrEmpty(rows->Cell(rows->BookmarkAt(0), 0));
}

}  // namespace ferrowind::contract::postgres_server
