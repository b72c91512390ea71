// The PostgreSQL engine under the suites of the database port.

#include "tests/contract/database/engine_contract.h"
#include "tests/contract/database/history_contract.h"
#include "tests/contract/database/procedures_contract.h"
#include "tests/contract/postgres/postgres_database.h"

namespace ferrowind::contract {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Engines, EngineContract,
    ::testing::Values(DatabaseKind<DatabaseUnderTest>{"Postgres", [] { return MakePostgresProbes(); }},
                      DatabaseKind<DatabaseUnderTest>{
                          "PostgresWithoutKeptSessions",
                          [] { return MakePostgresProbes("?keep_sessions=no"); }}),
    KindName<DatabaseKind<DatabaseUnderTest>>);

INSTANTIATE_TEST_SUITE_P(Engines, ProceduresContract,
                         ::testing::Values(DatabaseKind<CalendarDatabaseUnderTest>{
                             "Postgres", [] { return std::make_unique<PostgresDatabase>(); }}),
                         KindName<DatabaseKind<CalendarDatabaseUnderTest>>);

INSTANTIATE_TEST_SUITE_P(Engines, HistoryContract,
                         ::testing::Values(DatabaseKind<DatabaseWithHistoryUnderTest>{
                             "Postgres", [] { return std::make_unique<PostgresDatabase>(); }}),
                         KindName<DatabaseKind<DatabaseWithHistoryUnderTest>>);

}  // namespace
}  // namespace ferrowind::contract
