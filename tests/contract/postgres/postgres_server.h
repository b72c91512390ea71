#pragma once

#include <string>

namespace ferrowind::contract {

/// The server that tools/with_postgres.sh started for this program; without it every use is a
/// std::runtime_error, which fails the test.
namespace postgres_server {

/// The login that operators use in tests; its password has every sign that a URI must write in another way.
inline constexpr const char* kOperator = "operator_login";
inline constexpr const char* kOperatorPassword = "s3cret@/?:#[% \u00E4";

[[nodiscard]] std::string SuperuserName();
[[nodiscard]] std::string SuperuserPassword();
[[nodiscard]] std::string Host();
[[nodiscard]] std::string Port();
/// The connection string of `user`, with its password written as a URI has it.
[[nodiscard]] std::string Uri(const std::string& user, const std::string& password,
                              const std::string& database, const std::string& port = Port());
[[nodiscard]] std::string SuperuserUri(const std::string& database = "postgres");
[[nodiscard]] std::string OperatorUri(const std::string& database);

/// "start", "stop" or "restart".
void Control(const std::string& action);

/// Runs SQL as the superuser.
void Execute(const std::string& database, const std::string& sql);
/// The first cell of the first row of an SQL query of the superuser, as text; empty when there is none.
[[nodiscard]] std::string Ask(const std::string& database, const std::string& query);

/// Makes an empty database of a new name, which is returned.
[[nodiscard]] std::string CreateEmptyDatabase();
/// A new database with the name it returns, like the calendar database `original`, with which nobody may work
/// meanwhile. It takes a fraction of the time that creating the objects anew takes.
[[nodiscard]] std::string CreateDatabaseLike(const std::string& original);
void DropDatabase(const std::string& name);
/// Makes the operator's login, when there is none yet. The roles of calendar databases exist.
void EnsureOperator();

}  // namespace postgres_server
}  // namespace ferrowind::contract
