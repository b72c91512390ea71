#include "ferrowind/adapters/postgres/session_state.h"

#include <libpq-fe.h>
#include <poll.h>

#include "ferrowind/adapters/postgres/answer_parts.h"
#include "ferrowind/adapters/postgres/socket_wait.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

/// What DISCARD ALL does, but for the plans of statements: they hold nothing of a call, the server looks at
/// rights whenever it runs one, and makes those anew that a change has made wrong.
constexpr const char* kForgetAll =
    "CLOSE ALL; SET SESSION AUTHORIZATION DEFAULT; RESET ALL; DEALLOCATE ALL; UNLISTEN *; "
    "SELECT pg_catalog.pg_advisory_unlock_all(); DISCARD SEQUENCES; DISCARD TEMP";
constexpr int kStatementsOfForgetAll = 8;

bool IsDone(const PGresult* answer) {
  return PQresultStatus(answer) == PGRES_COMMAND_OK || PQresultStatus(answer) == PGRES_TUPLES_OK;
}

}  // namespace

bool BeginReset(ServerConnection& connection) {
  PGconn* const link = connection.Get();
  // A request to stop that is under way might meet the next call.
  if (!connection.IsAlive() || connection.WasToldToStop()) return false;
  if (PQpipelineStatus(link) != PQ_PIPELINE_OFF || PQtransactionStatus(link) != PQTRANS_IDLE) return false;
  if (PQsendQuery(link, kForgetAll) == 1 && PQflush(link) == 0) return true;
  // A server that does not take even this will take no call either.
  connection.GiveUp();
  return false;
}

bool EndReset(ServerConnection& connection, std::chrono::milliseconds time) {
  connection.LimitWaits(time, ServerConnection::LateWork::kLeft);
  try {
    int done = 0;
    QueryResult answer = connection.TakeAnswer();
    for (; answer != nullptr && IsDone(answer.get()); answer = connection.TakeAnswer()) ++done;
    if (answer == nullptr && done == kStatementsOfForgetAll && connection.IsAlive()) return true;
  } catch (const platform::Failure&) {
    // The session is closed, and nobody has to know.
  }
  connection.GiveUp();
  return false;
}

bool SeemsAlive(ServerConnection& connection) {
  // What a server says unasked are a few settings; one that goes on talking is none.
  constexpr int kMostParts = 16;
  PGconn* const link = connection.Get();
  for (int part = 0; connection.IsAlive() && part < kMostParts; ++part) {
    if (!AwaitSocket(PQsocket(link), POLLIN, ServerConnection::Clock::now())) return true;
    if (PQconsumeInput(link) != 1) return false;
    // Looks into what has come.
    static_cast<void>(PQisBusy(link));
  }
  return false;
}

bool IsOfKind(const ServerConnection& connection, std::string_view target_session_attrs) {
  const auto is_on = [&](const char* setting) {
    const char* const value = PQparameterStatus(connection.Get(), setting);
    return value != nullptr && std::string_view(value) == "on";
  };
  const bool is_standby = is_on("in_hot_standby");
  const bool is_read_only = is_standby || is_on("default_transaction_read_only");
  if (target_session_attrs == "read-write") return !is_read_only;
  if (target_session_attrs == "primary") return !is_standby;
  const bool tells = PQparameterStatus(connection.Get(), "in_hot_standby") != nullptr;
  if (target_session_attrs == "read-only") return is_read_only || !tells;
  if (target_session_attrs == "standby") return is_standby || !tells;
  return true;
}

}  // namespace ferrowind::postgres
