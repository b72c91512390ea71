// The SQLite engine under the suites of the database port.

#include "tests/contract/database/engine_contract.h"
#include "tests/contract/database/history_contract.h"
#include "tests/contract/database/procedures_contract.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

INSTANTIATE_TEST_SUITE_P(Engines, EngineContract,
                         ::testing::Values(DatabaseKind<DatabaseUnderTest>{"Sqlite", MakeSqliteProbes}),
                         KindName<DatabaseKind<DatabaseUnderTest>>);

INSTANTIATE_TEST_SUITE_P(Engines, ProceduresContract,
                         ::testing::Values(DatabaseKind<CalendarDatabaseUnderTest>{
                             "Sqlite", [] { return std::make_unique<SqliteDatabase>(); }}),
                         KindName<DatabaseKind<CalendarDatabaseUnderTest>>);

INSTANTIATE_TEST_SUITE_P(Engines, HistoryContract,
                         ::testing::Values(DatabaseKind<DatabaseWithHistoryUnderTest>{
                             "Sqlite", [] { return std::make_unique<SqliteDatabase>(); }}),
                         KindName<DatabaseKind<DatabaseWithHistoryUnderTest>>);

}  // namespace
}  // namespace ferrowind::contract
