#include "ferrowind/adapters/postgres/postgres_failure.h"

#include <cstdint>

namespace ferrowind::postgres {
namespace {

using platform::Failure;

constexpr std::string_view kCannotConnect = "08001";
constexpr std::string_view kLinkLost = "08006";
constexpr std::string_view kNotConfirmed = "01000";
constexpr std::string_view kStrangeAnswer = "08P01";

std::string TextOrEmpty(const char* text) { return text != nullptr ? text : ""; }

}  // namespace

Failure NoMemoryForConnection() {
  return FailureOfState("53200", "There is no memory for a connection", "libpq");
}

Failure ConnectFailure(const std::string& database, const std::string& reasons) {
  return FailureOfState(kCannotConnect, database + " cannot be connected to", reasons);
}

Failure OptionsRefused(const std::string& database, const std::string& reasons) {
  return FailureOfState(
      kCannotConnect,
      database +
          " cannot be connected to: the pool in front of it passes on no \"options\"; leave "
          "them out of the connection string, or write \"ignore_startup_parameters = "
          "options\" into the pool's settings",
      reasons);
}

Failure SilentServer(const std::string& database, std::int64_t seconds) {
  return FailureOfState(kCannotConnect,
                        database + " does not answer; calls fail at once, and after " +
                            std::to_string(seconds) + (seconds == 1 ? " second" : " seconds") +
                            " one tries again",
                        "the server is silent");
}

NoAnswer::NoAnswer(std::string_view sqlstate, const std::string& database, std::chrono::milliseconds time)
    : Failure(FailureOfState(sqlstate, database + " does not answer",
                             "no whole answer came within " + std::to_string(time.count()) + " ms")) {}

Failure Unconfirmed(const PGconn* connection, const std::string& notice) {
  return FailureOfState(
      kNotConfirmed,
      NameOfDatabase(connection) +
          " has it stored on this server, not confirmed by its standby; do not do it again, "
          "but look for it should the standby take over",
      Readable(notice));
}

bool IsUnconfirmed(const Failure& failure) { return IsOfState(failure, kNotConfirmed); }

Failure ResultFailure(const PGconn* connection, const PGresult* result) {
  const char* const sqlstate = result != nullptr ? PQresultErrorField(result, PG_DIAG_SQLSTATE) : nullptr;
  if (sqlstate == nullptr) {
    const bool is_answer = result != nullptr && PQresultStatus(result) != PGRES_FATAL_ERROR;
    return is_answer ? StrangeAnswer(connection, PQresStatus(PQresultStatus(result)))
                     : LinkFailure(connection);
  }
  if (!IsSqlState(sqlstate)) return StrangeAnswer(connection, "an error without a number");
  std::string text = OnOneLine(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY));
  // Which key is missing, or there twice.
  const std::string_view state(sqlstate);
  const std::string detail = OnOneLine(PQresultErrorField(result, PG_DIAG_MESSAGE_DETAIL));
  if ((state == "23503" || state == "23505") && !detail.empty()) text += ": " + detail;
  return FailureOfState(sqlstate, PlainWords(sqlstate, NameOfDatabase(connection)), text);
}

Failure LinkFailure(const PGconn* connection) {
  return FailureOfState(kLinkLost, PlainWords(kLinkLost, NameOfDatabase(connection)),
                        OnOneLine(PQerrorMessage(connection)));
}

Failure StrangeAnswer(const PGconn* connection, const std::string& answer) {
  return FailureOfState(kStrangeAnswer, PlainWords(kStrangeAnswer, NameOfDatabase(connection)), answer);
}

std::string NameOfDatabase(const PGconn* connection) {
  const std::string name = TextOrEmpty(PQdb(connection));
  const std::string server = NameOfServer(connection);
  return "The database " + name + (server.empty() ? "" : " at " + server);
}

std::string NameOfServer(const PGconn* connection) {
  const std::string host = TextOrEmpty(PQhost(connection));
  return host.empty() ? host : host + ":" + TextOrEmpty(PQport(connection));
}

}  // namespace ferrowind::postgres
