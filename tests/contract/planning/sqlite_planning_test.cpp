// Planning on SQLite.

#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/planning/planning_contract.h"

namespace ferrowind::contract {
namespace {

const DatabaseKind<CalendarDatabaseUnderTest> kSqlite = {"Sqlite",
                                                         [] { return std::make_unique<SqliteDatabase>(); }};

INSTANTIATE_TEST_SUITE_P(Engines, PlanningContract, ::testing::Values(kSqlite),
                         KindName<DatabaseKind<CalendarDatabaseUnderTest>>);

}  // namespace
}  // namespace ferrowind::contract
