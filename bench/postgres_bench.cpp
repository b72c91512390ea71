// A procedure call on a server with everything that belongs to it, from connecting to the detached record
// set, against the calls of the server's own client library that connect, run the same statement and read all
// cells; the same with sessions kept, also against that library on one connection kept open; and many
// operators who make such calls, against the server's own load generator. Without a server to measure on, the
// program starts one of its own for itself.

#include <chrono>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "bench/calendar_calls.h"
#include "bench/delaying_proxy.h"
#include "bench/measurement.h"
#include "bench/operators.h"
#include "bench/own_server.h"
#include "host/session/procedure_session.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;
using ferrowind::bench::kEuro;
using ferrowind::bench::kYear;
using ferrowind::host::RunWithDatabase;
using ferrowind::platform::EngineRegistry;

/// The number of cells.
std::size_t ReadByPeer(PGconn* connection) {
  const std::string id = std::to_string(kEuro);
  const std::string year = std::to_string(kYear);
  const char* const values[] = {id.c_str(), year.c_str()};
  PGresult* const result =
      PQexecParams(connection,
                   "SELECT d.ODate, d.TID1, h.Name1, h.Comment AS Comment2, d.Comment, d.ID2, d.Day1"
                   " FROM ferrowind.CldDay d LEFT JOIN ferrowind.CldHoliday h ON h.ID2 = d.ID2"
                   " WHERE d.ID1 = $1 AND d.Year1 = $2 ORDER BY d.Day1",
                   2, nullptr, values, nullptr, nullptr, 0);
  if (PQresultStatus(result) != PGRES_TUPLES_OK) throw std::runtime_error(PQerrorMessage(connection));
  std::size_t cells = 0;
  std::size_t sum = 0;
  for (int row = 0; row < PQntuples(result); ++row) {
    for (int column = 0; column < PQnfields(result); ++column, ++cells) {
      if (PQgetisnull(result, row, column) != 0) continue;
      sum += static_cast<std::size_t>(PQgetvalue(result, row, column)[0] + PQgetlength(result, row, column));
    }
  }
  KeepResult(sum);
  PQclear(result);
  return cells;
}

std::size_t CallPeer(const std::string& uri) {
  PGconn* const connection = PQconnectdb(uri.c_str());
  const std::size_t cells = ReadByPeer(connection);
  PQfinish(connection);
  return cells;
}

std::string Closing(const std::string& uri) {
  return uri + (uri.find('?') == std::string::npos ? "?" : "&") + "keep_sessions=no";
}

void MeasureOnLoopback(const Benchmark& benchmark, const std::string& uri) {
  CompareReading(
      benchmark, "20 calls of CldGetMain on a server, peer: raw libpq", 1.35, 20,
      [&] { return CallPeer(uri); }, 31);
}

void MeasureKeptSessions(const Benchmark& benchmark, const std::string& uri) {
  CompareReading(
      benchmark, "20 calls, sessions kept, peer: raw libpq", 0.15, 20, [&] { return CallPeer(uri); }, 15);
  PGconn* const connection = PQconnectdb(uri.c_str());
  CompareReading(
      benchmark, "200 calls, sessions kept, peer: raw libpq, one kept", 1.6, 200,
      [&] { return ReadByPeer(connection); }, 15);
  PQfinish(connection);
}

void MeasureOverDistance(const Benchmark& benchmark, const std::string& uri) {
  CompareReading(
      benchmark, "10 calls over 1 ms each way, peer: raw libpq", 1.5, 10, [&] { return CallPeer(uri); }, 15);
}

/// As long as a call of theirs takes one of ours may take a ninth longer: nine calls in the time of ten.
void MeasureOperators(const Benchmark& benchmark, const EngineRegistry& engines, const std::string& uri) {
  constexpr int kCalls = 30 * ferrowind::bench::kOperators;
  const auto by_peer = [&] { return ferrowind::bench::WorkOfLoadGenerator(uri, kCalls); };
  benchmark.CompareTimes(
      "a call of 16 operators at work, peer: pgbench -C", 1 / 0.9,
      [&] { return ferrowind::bench::WorkOfOperators(engines, Closing(uri), kCalls); }, by_peer, 9);
  benchmark.CompareTimes(
      "the same, sessions kept, peer: pgbench -C", 1.0 / 4,
      [&] { return ferrowind::bench::WorkOfOperators(engines, uri, kCalls); }, by_peer, 9);
}

}  // namespace

int main(int argc, char** argv) {
  return ferrowind::bench::RunBenchmark(argc, argv, [&](const Benchmark& benchmark) {
    const std::string uri = ferrowind::bench::OwnServer(argv);
    ferrowind::postgres::CreateDatabaseObjects(uri);
    EngineRegistry engines;
    engines.Register(ferrowind::postgres::Engine::kScheme, std::make_shared<ferrowind::postgres::Engine>());
    RunWithDatabase(engines, uri, [] {
      ferrowind::bench::AddWeekendRules();
      ferrowind::bench::CreateCalendarWithWeekends(kEuro, kYear);
    });
    RunWithDatabase(engines, Closing(uri), [&] { MeasureOnLoopback(benchmark, uri); });
    RunWithDatabase(engines, uri, [&] { MeasureKeptSessions(benchmark, uri); });
    {
      const ferrowind::bench::DelayingProxy proxy(ferrowind::bench::PortIn(uri),
                                                  std::chrono::milliseconds(1));
      const std::string distant = uri + "?port=" + proxy.Port();
      RunWithDatabase(engines, Closing(distant), [&] { MeasureOverDistance(benchmark, distant); });
    }
    RunWithDatabase(engines, uri, [] { ferrowind::bench::CreateCalendarsOfOperators(); });
    MeasureOperators(benchmark, engines, uri);
  });
}
