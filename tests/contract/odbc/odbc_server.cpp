#include "tests/contract/odbc/odbc_server.h"

namespace ferrowind::contract::odbc_server {
namespace {

std::string InBraces(const std::string& value) {
  std::string braced = "{";
  for (const char c : value) braced += c == '}' ? "}}" : std::string(1, c);
  return braced + '}';
}

}  // namespace

std::string ConnectionString(const std::string& user, const std::string& password,
                             const std::string& database, const std::string& port) {
  return "Driver=" + InBraces(kDriver) + ";Server=" + postgres_server::Host() + ";Port=" + port +
         ";Database=" + database + ";UID=" + user + ";PWD=" + InBraces(password);
}

std::string SuperuserConnectionString(const std::string& database) {
  return ConnectionString(postgres_server::SuperuserName(), postgres_server::SuperuserPassword(), database);
}

std::string OperatorConnectionString(const std::string& database, const std::string& port) {
  return ConnectionString(postgres_server::kOperator, postgres_server::kOperatorPassword, database, port);
}

}  // namespace ferrowind::contract::odbc_server
