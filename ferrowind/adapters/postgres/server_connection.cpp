#include "ferrowind/adapters/postgres/server_connection.h"

#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"

namespace ferrowind::postgres {
namespace {

QueryResult Successful(PGconn* connection, PGresult* raw) {
  QueryResult result(raw);
  const auto status = PQresultStatus(result.get());
  if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK) throw ResultFailure(connection, result.get());
  return result;
}

struct MemoryFree {
  void operator()(char* memory) const { PQfreemem(memory); }
};
using LibraryText = std::unique_ptr<char, MemoryFree>;

}  // namespace

void DropNotice(void* /*context*/, const PGresult* /*notice*/) {}

ServerConnection::ServerConnection(const std::string& uri) {
  const ConnectionUri parsed(uri);
  const ConnectionArguments arguments(parsed);
  connection_.reset(PQconnectdbParams(arguments.Keywords(), arguments.Values(), 0));
  if (PQstatus(Get()) != CONNECTION_OK) throw ConnectFailure(Get());
  PQsetNoticeReceiver(Get(), DropNotice, nullptr);
}

QueryResult ServerConnection::Query(const std::string& sql, const std::vector<std::string>& parameters) {
  std::vector<const char*> values;
  values.reserve(parameters.size());
  for (const auto& parameter : parameters) values.push_back(parameter.c_str());
  return Successful(Get(), PQexecParams(Get(), sql.c_str(), static_cast<int>(values.size()), nullptr,
                                        values.data(), nullptr, nullptr, 1));
}

void ServerConnection::RunScript(const std::string& sql) {
  static_cast<void>(Successful(Get(), PQexec(Get(), sql.c_str())));
}

std::string ServerConnection::Literal(const std::string& text) const {
  const LibraryText literal(PQescapeLiteral(Get(), text.data(), text.size()));
  if (!literal) throw LinkFailure(Get());
  return literal.get();
}

std::string ServerConnection::Identifier(const std::string& name) const {
  const LibraryText identifier(PQescapeIdentifier(Get(), name.data(), name.size()));
  if (!identifier) throw LinkFailure(Get());
  return identifier.get();
}

std::string ServerConnection::DatabaseName() const { return NameOfDatabase(Get()); }

}  // namespace ferrowind::postgres
